#include "windows/desktop_window.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include "windows/field.h"
#include "windows/panel.h"
#include "windows/picture_controls.h"
#include "windows/strings.h"

namespace tombrello::windows {
namespace {

// Of the restored window, in pixels of a screen of 96 dots an inch.
constexpr int kWidth = 1000;
constexpr int kHeight = 780;
// Of the smallest window, without its frame.
constexpr int kLeastWidth = 400;
constexpr int kLeastHeight = 300;

constexpr DWORD kStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;

}  // namespace

DesktopWindow::DesktopWindow(painting::PictureSource pictures)
    : table_(std::move(pictures), relay_) {
  create(L"Tombrello", kStyle, nullptr);
  SetMenu(handle(), menus_.bar());
  menus_.set_frame(handle());
  table_.create_in(handle());
  table_.set_follower([this] { overlay_.follow_table(); });
  line_.create_in(handle());
  place_in_work_area();
}

void DesktopWindow::place_in_work_area() {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(handle(), MONITOR_DEFAULTTOPRIMARY), &monitor);
  const RECT& work = monitor.rcWork;
  const int dots = static_cast<int>(GetDpiForWindow(handle()));
  const int free_width = static_cast<int>(work.right - work.left);
  const int free_height = static_cast<int>(work.bottom - work.top);
  const int width = std::min(MulDiv(kWidth, dots, 96), free_width);
  const int height = std::min(MulDiv(kHeight, dots, 96), free_height);
  const int x = static_cast<int>(work.left) + (free_width - width) / 2;
  const int y = static_cast<int>(work.top) + (free_height - height) / 2;
  move_to(handle(), {x, y, x + width, y + height});
}

// The table, and the line below it.
void DesktopWindow::lay_out() {
  if (line_.handle() == nullptr) return;
  painting::PixelRect table = client_pixels(handle());
  painting::PixelRect line = table;
  line.top = table.bottom = std::max(1, table.bottom - line_.height());
  move_to(table_.handle(), table);
  move_to(line_.handle(), line);
}

void DesktopWindow::keep_smallest_size(MINMAXINFO& info) const {
  const UINT dots = GetDpiForWindow(handle());
  RECT frame{0, 0, MulDiv(kLeastWidth, static_cast<int>(dots), 96),
             MulDiv(kLeastHeight, static_cast<int>(dots), 96)};
  AdjustWindowRectExForDpi(&frame, kStyle, FALSE, 0, dots);
  info.ptMinTrackSize = {frame.right - frame.left, frame.bottom - frame.top};
}

void DesktopWindow::set_caption(const std::string& text) {
  SetWindowTextW(handle(), wide(text).c_str());
}

void DesktopWindow::show_maximised() {
  ShowWindow(handle(), SW_SHOWMAXIMIZED);
}

void DesktopWindow::serve_events() {
  table_.show_changes();
  if (!closing_) wait();
  MSG next;
  while (PeekMessageW(&next, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&next);
    DispatchMessageW(&next);
  }
}

// Sleeps until a message has come or the timer has run out.
void DesktopWindow::wait() {
  const HANDLE timer = timer_.handle();
  if (MsgWaitForMultipleObjectsEx(1, &timer, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE) ==
      WAIT_OBJECT_0) {
    relay_.timer_ticked();
  }
}

void DesktopWindow::show_now(int milliseconds) {
  if (closing_) return;
  const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
  table_.show_changes_now();
  std::this_thread::sleep_until(until);
}

// Leaving is up to the chain of the game: the window only says that it is closing.
void DesktopWindow::close() {
  closing_ = true;
  ShowWindow(handle(), SW_HIDE);
}

void DesktopWindow::stop() {
  question_.take_down();
  EndMenu();
  SendMessageW(handle(), WM_CANCELMODE, 0, 0);
  close();
}

Answer DesktopWindow::message_box(const std::string& text, Buttons buttons) {
  const Answer otherwise = buttons == Buttons::ok ? Answer::ok : Answer::no;
  if (closing_) return otherwise;
  table_.show_changes();
  const Answer answer = question_.ask(handle(), text, buttons);
  return closing_ ? otherwise : answer;
}

void DesktopWindow::add_entry(EntryId entry, EntryId parent, const std::string& caption) {
  menus_.add(entry, parent, caption);
}

void DesktopWindow::add_panel(ControlId panel, const std::string& text, const Font& font,
                              long text_colour, long back_colour) {
  overlay_.add(
      panel, std::make_unique<Panel>(panel, text, font, text_colour, back_colour, table_, relay_));
}

void DesktopWindow::add_field(ControlId field, FieldRule rule, const Font& font) {
  overlay_.add(field, std::make_unique<Field>(field, rule, font, table_, relay_));
}

void DesktopWindow::add_shape(ControlId shape, Colour colour) {
  overlay_.add(shape, std::make_unique<ShapeControl>(colour, table_));
}

void DesktopWindow::add_picture(ControlId control, Picture picture) {
  overlay_.add(control, std::make_unique<PictureControl>(control, picture, table_, relay_));
}

void DesktopWindow::keep_keyboard(bool active) {
  if (!active) {
    keyboard_ = GetFocus();
  } else {
    SetFocus(IsWindow(keyboard_) && IsChild(handle(), keyboard_) && IsWindowVisible(keyboard_)
                 ? keyboard_
                 : table_.handle());
  }
}

LRESULT DesktopWindow::message(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_SIZE:
      if (w != SIZE_MINIMIZED) lay_out();
      return 0;
    case WM_GETMINMAXINFO:
      keep_smallest_size(*reinterpret_cast<MINMAXINFO*>(l));
      return 0;
    case WM_DPICHANGED: {
      const RECT& place = *reinterpret_cast<const RECT*>(l);
      move_to(handle(), {static_cast<int>(place.left), static_cast<int>(place.top),
                         static_cast<int>(place.right), static_cast<int>(place.bottom)});
      return 0;
    }
    case WM_ACTIVATE:
      keep_keyboard(LOWORD(w) != WA_INACTIVE);
      return 0;
    case WM_COMMAND:
      if (l == 0 && menus_.has(static_cast<EntryId>(LOWORD(w)))) {
        relay_.entry_chosen(static_cast<EntryId>(LOWORD(w)));
      }
      return 0;
    case WM_NCLBUTTONDBLCLK:  // two quick choices in the bar are two choices
      return NativeWindow::message(w == HTMENU ? WM_NCLBUTTONDOWN : message, w, l);
    case WM_CLOSE:  // under a box, which blocks the frame, it comes from outside
      question_.waits() ? stop() : close();
      return 0;
    case WM_ENDSESSION:
      if (w != 0) stop();
      return 0;
    case kWake:
      if (woken_) woken_();
      return 0;
    default:
      return NativeWindow::message(message, w, l);
  }
}

}  // namespace tombrello::windows
