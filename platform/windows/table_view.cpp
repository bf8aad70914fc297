#include "windows/table_view.h"

#include <windowsx.h>

#include <chrono>
#include <utility>

#include "painting/mark.h"

namespace tombrello::windows {
namespace {

using painting::PixelRect;
using painting::Region;

// While the window is being dragged to another size, a paint renders so many milliseconds of
// pictures; those that are left are stretched for the moment and follow in the next paint.
constexpr auto kPatience = std::chrono::milliseconds(30);

const wchar_t* cursor_of(PointerShape shape) {
  switch (shape) {
    case PointerShape::up_arrow:
      return IDC_UPARROW;
    case PointerShape::hourglass:
      return IDC_WAIT;
    case PointerShape::arrow:
      break;
  }
  return IDC_ARROW;
}

std::optional<Key> key_of(WPARAM key) {
  if (GetKeyState(VK_CONTROL) < 0 || GetKeyState(VK_MENU) < 0) return std::nullopt;
  switch (key) {
    case VK_UP:
      return Key::up;
    case VK_DOWN:
      return Key::down;
    case VK_LEFT:
      return Key::left;
    case VK_RIGHT:
      return Key::right;
    case VK_TAB:
      return GetKeyState(VK_SHIFT) < 0 ? Key::previous : Key::next;
    case VK_RETURN:
      return Key::enter;
    case VK_SPACE:
      return Key::space;
    case VK_F1:
      return Key::help;
    case VK_ESCAPE:
      return Key::escape;
    default:
      return std::nullopt;
  }
}

std::optional<WORD> scrolling_by(WPARAM key) {
  switch (key) {
    case VK_UP:
      return SB_LINEUP;
    case VK_DOWN:
      return SB_LINEDOWN;
    case VK_PRIOR:
      return SB_PAGEUP;
    case VK_NEXT:
      return SB_PAGEDOWN;
    case VK_HOME:
      return SB_TOP;
    case VK_END:
      return SB_BOTTOM;
    default:
      return std::nullopt;
  }
}

// These go on while the key is held.
bool moves_mark(Key key) {
  return key != Key::enter && key != Key::space && key != Key::help && key != Key::escape;
}

}  // namespace

TableView::TableView(painting::PictureSource source, WindowEvents& events)
    : events_(events), pictures_(std::move(source)) {}

TableView::~TableView() {
  if (accessible_ == nullptr) return;
  accessible_->leave();
  CoUninitialize();
}

void TableView::create_in(HWND frame) {
  create(L"TombrelloTable", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, frame);
}

void TableView::follow_screen() {
  const PixelRect pixels = client_pixels(handle());
  const painting::PixelSize room{pixels.width(), pixels.height()};
  if (pixels.empty()) return;  // minimised
  const painting::TableGeometry current(room, GetDpiForWindow(handle()) / 72.0);
  if (room == room_ && current == geometry_) return;
  if (current.scale() != geometry_.scale()) {
    pictures_.start_round();
    stale_sizes_ = true;
  }
  geometry_ = current;
  if (room != room_) buffer_.resize(room);
  room_ = room;
  repaint(pixels);
  if (follower_) follower_();
}

void TableView::repaint(const Region& region) {
  stale_.add(region);
  for (const PixelRect& rect : region.rects()) {
    const RECT part = to_rect(rect);
    InvalidateRect(handle(), &part, FALSE);
  }
}

void TableView::show_changes() {
  follow_screen();
  const Surface::Changes changes = surface_.take_changes();
  repaint(painting::changed_pixels(changes, geometry_, letters_, client_pixels(handle())));
}

void TableView::show_changes_now() {
  show_changes();
  UpdateWindow(handle());
  GdiFlush();
}

void TableView::paint() {
  PAINTSTRUCT shown{};
  const HDC screen = BeginPaint(handle(), &shown);
  const Region exposed = std::exchange(stale_, {});
  GdiCanvas canvas(buffer_, letters_);
  const Region drafts =
      painting::paint_surface(canvas, letters_, surface_, geometry_, exposed, pictures_,
                              std::chrono::steady_clock::now() + kPatience);
  if (mark_) painting::paint_mark(canvas, *mark_, geometry_);
  buffer_.show(screen, shown.rcPaint);
  EndPaint(handle(), &shown);
  repaint(drafts);
  if (stale_sizes_ && drafts.empty()) {
    pictures_.drop_unused();
    stale_sizes_ = false;
  }
  if (first_paint_) std::exchange(first_paint_, nullptr)();
}

void TableView::repaint_mark() {
  if (!mark_) return;
  for (const PixelRect& side : painting::mark_pixels(*mark_, geometry_)) repaint(side);
}

// Only the outline is painted anew, where it was and where it is.
void TableView::set_mark(const std::optional<Area>& area) {
  if (area == mark_) return;
  repaint_mark();
  mark_ = area;
  repaint_mark();
}

LRESULT TableView::accessible_object(WPARAM w) {
  if (accessible_ == nullptr && SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
    accessible_ = new AccessibleTable(handle(), geometry_, events_);
  }
  return accessible_ == nullptr ? 0 : LresultFromObject(IID_IAccessible, w, accessible_);
}

void TableView::set_places(const std::vector<TablePlace>& places, int focus) {
  if (accessible_ != nullptr) accessible_->set_places(places, focus);
}

bool TableView::key(UINT message, WPARAM pressed, LPARAM l) {
  const std::optional<Key> key = key_of(pressed);
  if (!key) return false;
  constexpr LPARAM kHeld = 1 << 30;
  if (message == WM_KEYUP) {
    events_.key_released(*key);
  } else if ((l & kHeld) == 0 || moves_mark(*key)) {
    events_.key_pressed(*key);
  }
  return true;
}

// A panel takes no keyboard: while it shows, those keys of the table that scroll are its.
bool TableView::scrolls_panel(WPARAM key) const {
  const std::optional<WORD> how = scrolling_by(key);
  HWND panel = nullptr;
  do {
    panel = FindWindowExW(handle(), panel, kPanelKind, nullptr);
  } while (panel != nullptr && !IsWindowVisible(panel));
  if (!how || panel == nullptr) return false;
  SendMessageW(panel, WM_VSCROLL, *how, 0);
  return true;
}

bool TableView::take_key_from_elsewhere(WPARAM pressed) {
  const std::optional<Key> key = key_of(pressed);
  if (key != Key::help && key != Key::escape) return false;
  events_.key_pressed(*key);
  return true;
}

Point TableView::logical(LPARAM place) const {
  return geometry_.logical(GET_X_LPARAM(place), GET_Y_LPARAM(place));
}

void TableView::pressed(Button button, LPARAM place) {
  SetFocus(handle());
  const Point point = logical(place);
  events_.pressed(button, point.x, point.y);
}

// The system also tells of a move when what lies under the pointer has changed.
void TableView::moved(LPARAM place) {
  if (std::exchange(last_move_, place) == place) return;
  const Point point = logical(place);
  events_.moved(point.x, point.y);
}

void TableView::set_pointer(PointerShape shape) {
  if (shape == pointer_) return;
  pointer_ = shape;
  POINT place{};
  if (GetCursorPos(&place)) show_pointer(WindowFromPoint(place));
}

bool TableView::show_pointer(HWND under) const {
  if (under != handle()) return false;
  SetCursor(LoadCursorW(nullptr, cursor_of(pointer_)));
  return true;
}

LRESULT TableView::message(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      follow_screen();
      paint();
      return 0;
    case WM_SIZE:
      follow_screen();
      return 0;
    case WM_GETOBJECT:
      if (static_cast<LONG>(l) == OBJID_CLIENT) return accessible_object(w);
      break;
    case WM_LBUTTONDOWN:
      pressed(Button::left, l);
      return 0;
    case WM_RBUTTONDOWN:
      pressed(Button::right, l);
      return 0;
    case WM_MBUTTONDOWN:
    case WM_XBUTTONDOWN:
      pressed(Button::other, l);
      return message == WM_XBUTTONDOWN;
    case WM_MOUSEMOVE:
      moved(l);
      return 0;
    case WM_KEYDOWN:
      if (scrolls_panel(w) || key(message, w, l)) return 0;
      break;
    case WM_KEYUP:
      if (key(message, w, l)) return 0;
      break;
    case WM_KILLFOCUS:  // what is held down when the keyboard goes elsewhere is let go there
      events_.key_released(Key::space);
      break;
    case WM_SETCURSOR:
      if (LOWORD(l) == HTCLIENT && show_pointer(reinterpret_cast<HWND>(w))) return 1;
      break;
    case WM_COMMAND:
      if (HIWORD(w) == EN_CHANGE) SendMessageW(reinterpret_cast<HWND>(l), kTextChanged, 0, 0);
      return 0;
    default:
      break;
  }
  return NativeWindow::message(message, w, l);
}

}  // namespace tombrello::windows
