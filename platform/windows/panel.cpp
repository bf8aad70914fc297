#include "windows/panel.h"

#include <algorithm>

#include "windows/strings.h"

namespace tombrello::windows {
namespace {

constexpr UINT kLayout = DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL;

COLORREF colour_or(long colour, int otherwise) {
  return colour < 0 ? GetSysColor(otherwise) : static_cast<COLORREF>(colour);
}

std::vector<std::wstring> split(const std::wstring& text) {
  std::vector<std::wstring> lines(1);
  for (const wchar_t c : text) {
    if (c == L'\n') {
      lines.emplace_back();
    } else {
      lines.back() += c;
    }
  }
  return lines;
}

// The first line, and each line that has an empty one above it and a text below it.
bool is_heading(const std::vector<std::wstring>& lines, std::size_t i) {
  if (i == 0) return true;
  return lines[i - 1].empty() && i + 1 < lines.size() && !lines[i + 1].empty();
}

}  // namespace

Panel::Panel(ControlId id, const std::string& text, const Font& font, long text_colour,
             long back_colour, TableView& table, WindowEvents& events)
    : Control(table),
      id_(id),
      font_(font),
      text_colour_(colour_or(text_colour, COLOR_BTNTEXT)),
      back_colour_(colour_or(back_colour, COLOR_BTNFACE)),
      events_(events) {
  const std::vector<std::wstring> lines = split(wide(text));
  for (std::size_t i = 0; i < lines.size(); ++i) lines_.push_back({lines[i], is_heading(lines, i)});
  create(kPanelKind, kControlStyle | WS_BORDER, table.handle());
  SetWindowTextW(handle(), wide(text).c_str());  // for those who have it read to them
  be_alert();
}

int Panel::lay_out(HDC dc, int width, int top, bool draw) const {
  int y = top + margin_;
  for (const Line& line : lines_) {
    const GdiLetters::Style& style = table_.letters().style(font_, letter_pixels_, line.heading);
    SelectObject(dc, style.font.get());
    RECT place{margin_, y, std::max(margin_ + 1, width - margin_), y};
    DrawTextW(dc, line.text.c_str(), -1, &place, kLayout | DT_CALCRECT);
    place.right = std::max<LONG>(margin_ + 1, width - margin_);
    if (draw) DrawTextW(dc, line.text.c_str(), -1, &place, kLayout);
    y += line.text.empty() ? style.height : static_cast<int>(place.bottom - place.top);
  }
  return y + margin_ - top;
}

int Panel::height_at(int width) const {
  const HDC dc = GetDC(handle());
  const int height = lay_out(dc, width, 0, false);
  ReleaseDC(handle(), dc);
  return height;
}

// A bar takes width from the text, which may then need more height.
void Panel::fit(const Area& area) {
  painting::PixelRect place = table_.geometry().pixels(area);
  letter_pixels_ = table_.geometry().letter_pixels(font_);
  margin_ = table_.geometry().letter_pixels({"", 6});
  const int border = 2 * GetSystemMetrics(SM_CXBORDER);
  needed_ = height_at(place.width() - border);
  const int lowest = table_.geometry().table().bottom;
  if (needed_ + border > place.height()) {
    place.bottom = std::min(lowest, place.top + needed_ + border);
  }
  const bool all = place.height() >= needed_ + border;
  ShowScrollBar(handle(), SB_VERT, !all);
  move_to(handle(), place);
  const painting::PixelRect inside = client_pixels(handle());
  if (!all) needed_ = height_at(inside.width());
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE;
  info.nMax = all ? 0 : needed_ - 1;
  info.nPage = static_cast<UINT>(inside.height());
  if (!all) SetScrollInfo(handle(), SB_VERT, &info, TRUE);
  scroll_to(top_);
  repaint();
}

void Panel::set_shown(bool shown) {
  Control::set_shown(shown);
  if (!shown) return;
  scroll_to(0);
  read_out();
}

void Panel::scroll_to(int top) {
  top_ = std::clamp(top, 0, std::max(0, needed_ - client_pixels(handle()).height()));
  SetScrollPos(handle(), SB_VERT, top_, TRUE);
  repaint();
}

void Panel::scroll(WPARAM how) {
  const int line = table_.letters().style(font_, letter_pixels_, false).height;
  const int page = client_pixels(handle()).height() - line;
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_TRACKPOS;
  GetScrollInfo(handle(), SB_VERT, &info);
  switch (LOWORD(how)) {
    case SB_LINEUP:
      return scroll_to(top_ - line);
    case SB_LINEDOWN:
      return scroll_to(top_ + line);
    case SB_PAGEUP:
      return scroll_to(top_ - page);
    case SB_PAGEDOWN:
      return scroll_to(top_ + page);
    case SB_TOP:
      return scroll_to(0);
    case SB_BOTTOM:
      return scroll_to(needed_);
    case SB_THUMBTRACK:
      return scroll_to(info.nTrackPos);
    default:
      return;
  }
}

void Panel::paint(HDC dc, const RECT& stale) {
  SetBkColor(dc, back_colour_);
  ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &stale, nullptr, 0, nullptr);
  SetTextColor(dc, text_colour_);
  lay_out(dc, client_pixels(handle()).width(), -top_, true);
}

LRESULT Panel::message(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_VSCROLL:
      scroll(w);
      return 0;
    case WM_MOUSEWHEEL:
      scroll_to(top_ - GET_WHEEL_DELTA_WPARAM(w));
      return 0;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
      events_.control_clicked(id_);
      return 0;
    default:
      return PaintedWindow::message(message, w, l);
  }
}

}  // namespace tombrello::windows
