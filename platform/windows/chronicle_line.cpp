#include "windows/chronicle_line.h"

#include <algorithm>
#include <utility>

#include "windows/strings.h"

namespace tombrello::windows {
namespace {

// In pixels of a screen of 96 dots an inch.
constexpr int kMargin = 8;
constexpr int kGap = 24;  // between the two parts

constexpr UINT kLayout = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;

int width_of(HDC dc, const std::wstring& text) {
  SIZE size{};
  GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
  return static_cast<int>(size.cx);
}

// Whole words go from the beginning, until the rest has room.
std::wstring end_of(HDC dc, const std::wstring& text, int room) {
  if (width_of(dc, text) <= room) return text;
  std::size_t from = 0;
  while ((from = text.find(L' ', from) + 1) > 0) {
    const std::wstring rest = L"… " + text.substr(from);
    if (width_of(dc, rest) <= room) return rest;
  }
  return {};
}

}  // namespace

ChronicleLine::~ChronicleLine() {
  drop_letters();
}

void ChronicleLine::create_in(HWND frame) {
  create(L"TombrelloLine", WS_CHILD | WS_VISIBLE, frame);
  be_alert();
}

void ChronicleLine::drop_letters() {
  for (HFONT* font : {&plain_, &bold_}) {
    if (*font != nullptr) DeleteObject(std::exchange(*font, nullptr));
  }
}

void ChronicleLine::choose_letters() {
  const UINT dots = GetDpiForWindow(handle());
  if (dots == dots_ && plain_ != nullptr) return;
  dots_ = dots;
  drop_letters();
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dots);
  plain_ = CreateFontIndirectW(&metrics.lfMessageFont);
  metrics.lfMessageFont.lfWeight = FW_BOLD;
  bold_ = CreateFontIndirectW(&metrics.lfMessageFont);
}

int ChronicleLine::height() {
  choose_letters();
  const HDC dc = GetDC(handle());
  const HGDIOBJ before = SelectObject(dc, plain_);
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  SelectObject(dc, before);
  ReleaseDC(handle(), dc);
  return static_cast<int>(metrics.tmHeight + metrics.tmHeight / 2);
}

// The window's own text is what is read to those who have it read.
void ChronicleLine::tell(const std::string& now, const std::string& then) {
  now_ = wide(now);
  then_ = wide(then);
  const std::wstring whole = then_.empty() ? now_ : now_ + L" — " + then_;
  SetWindowTextW(handle(), whole.c_str());
  read_out();
  InvalidateRect(handle(), nullptr, FALSE);
}

void ChronicleLine::paint() {
  choose_letters();
  PAINTSTRUCT shown{};
  const HDC dc = BeginPaint(handle(), &shown);
  const painting::PixelRect all = client_pixels(handle());
  RECT inside = to_rect(all);
  FillRect(dc, &inside, GetSysColorBrush(COLOR_BTNFACE));
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
  const auto pixels = [this](int at_96) { return MulDiv(at_96, static_cast<int>(dots_), 96); };
  InflateRect(&inside, -pixels(kMargin), 0);
  const HGDIOBJ before = SelectObject(dc, bold_);
  DrawTextW(dc, now_.c_str(), -1, &inside, kLayout | DT_END_ELLIPSIS);
  const int left = std::min(width_of(dc, now_), static_cast<int>(inside.right - inside.left));
  const int room = static_cast<int>(inside.right - inside.left) - left - pixels(kGap);
  SelectObject(dc, plain_);
  if (room > 0) {
    DrawTextW(dc, end_of(dc, then_, room).c_str(), -1, &inside, kLayout | DT_RIGHT);
  }
  SelectObject(dc, before);
  EndPaint(handle(), &shown);
}

LRESULT ChronicleLine::message(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      paint();
      return 0;
    case WM_SIZE:
      InvalidateRect(handle(), nullptr, FALSE);
      return 0;
    default:
      return NativeWindow::message(message, w, l);
  }
}

}  // namespace tombrello::windows
