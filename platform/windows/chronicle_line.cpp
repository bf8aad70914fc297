#include "windows/chronicle_line.h"

#include <algorithm>

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

void ChronicleLine::create_in(HWND frame) {
  create(L"TombrelloLine", WS_CHILD | WS_VISIBLE, frame);
  be_alert();
}

void ChronicleLine::choose_letters() {
  const UINT dots = GetDpiForWindow(handle());
  if (dots == dots_ && plain_ != nullptr) return;
  dots_ = dots;
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dots);
  plain_.reset(CreateFontIndirectW(&metrics.lfMessageFont));
  metrics.lfMessageFont.lfWeight = FW_BOLD;
  bold_.reset(CreateFontIndirectW(&metrics.lfMessageFont));
}

int ChronicleLine::height() {
  choose_letters();
  const HDC dc = GetDC(handle());
  const int line = line_height(dc, plain_.get());
  ReleaseDC(handle(), dc);
  return line + line / 2;
}

// The window's own text is what is read to those who have it read.
void ChronicleLine::tell(const std::string& now, const std::string& then) {
  now_ = wide(now);
  then_ = wide(then);
  const std::wstring whole = then_.empty() ? now_ : now_ + L" — " + then_;
  SetWindowTextW(handle(), whole.c_str());
  read_out();
  repaint();
}

void ChronicleLine::paint(HDC dc, const RECT&) {
  choose_letters();
  const painting::PixelRect all = client_pixels(handle());
  RECT inside = to_rect(all);
  FillRect(dc, &inside, GetSysColorBrush(COLOR_BTNFACE));
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
  const auto pixels = [this](int at_96) { return MulDiv(at_96, static_cast<int>(dots_), 96); };
  InflateRect(&inside, -pixels(kMargin), 0);
  const HGDIOBJ before = SelectObject(dc, bold_.get());
  DrawTextW(dc, now_.c_str(), -1, &inside, kLayout | DT_END_ELLIPSIS);
  const int left = std::min(width_of(dc, now_), static_cast<int>(inside.right - inside.left));
  const int room = static_cast<int>(inside.right - inside.left) - left - pixels(kGap);
  SelectObject(dc, plain_.get());
  if (room > 0) {
    DrawTextW(dc, end_of(dc, then_, room).c_str(), -1, &inside, kLayout | DT_RIGHT);
  }
  SelectObject(dc, before);
}

LRESULT ChronicleLine::message(UINT message, WPARAM w, LPARAM l) {
  if (message == WM_SIZE) repaint();
  return PaintedWindow::message(message, w, l);
}

}  // namespace tombrello::windows
