#include "windows/native_window.h"

#include <oleacc.h>

#include <stdexcept>
#include <utility>

#include "windows/accessible_words.h"
#include "windows/resources.h"

namespace tombrello::windows {
namespace {

HINSTANCE program() {
  return GetModuleHandleW(nullptr);
}

}  // namespace

NativeWindow::~NativeWindow() {
  if (handle_ == nullptr) return;
  SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
  DestroyWindow(handle_);
}

// A class that is there already stays as it is.
void NativeWindow::create(const wchar_t* kind, DWORD style, HWND parent) {
  WNDCLASSEXW window{};
  window.cbSize = sizeof window;
  window.lpfnWndProc = procedure;
  window.hInstance = program();
  window.lpszClassName = kind;
  window.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window.hIcon = LoadIconW(program(), MAKEINTRESOURCEW(kProgramIcon));
  RegisterClassExW(&window);
  CreateWindowExW(0, kind, L"", style, CW_USEDEFAULT, 0, 0, 0, parent, nullptr, program(), this);
  if (handle_ == nullptr) throw std::runtime_error("no window can be made");
}

LRESULT NativeWindow::message(UINT message, WPARAM w, LPARAM l) {
  return DefWindowProcW(handle_, message, w, l);
}

LRESULT PaintedWindow::message(UINT message, WPARAM w, LPARAM l) {
  if (message == WM_ERASEBKGND) return 1;
  if (message != WM_PAINT) return NativeWindow::message(message, w, l);
  PAINTSTRUCT shown{};
  const HDC dc = BeginPaint(handle(), &shown);
  paint(dc, shown.rcPaint);
  EndPaint(handle(), &shown);
  return 0;
}

void NativeWindow::read_out() const {
  NotifyWinEvent(EVENT_SYSTEM_ALERT, handle_, OBJID_CLIENT, CHILDID_SELF);
}

LRESULT CALLBACK NativeWindow::procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_NCCREATE) {
    auto* self = static_cast<NativeWindow*>(reinterpret_cast<CREATESTRUCTW*>(l)->lpCreateParams);
    self->handle_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* self = reinterpret_cast<NativeWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, w, l);
  const bool asked = message == WM_GETOBJECT && static_cast<LONG>(l) == OBJID_CLIENT;
  if (asked && self->alert_ && !std::exchange(self->described_, true)) {
    describe(window, {}, ROLE_SYSTEM_ALERT);
  }
  const LRESULT answer = self->message(message, w, l);
  if (message == WM_NCDESTROY) self->handle_ = nullptr;
  return answer;
}

painting::PixelRect client_pixels(HWND window) {
  RECT rect{};
  GetClientRect(window, &rect);
  return {0, 0, static_cast<int>(rect.right), static_cast<int>(rect.bottom)};
}

void move_to(HWND window, const painting::PixelRect& place) {
  SetWindowPos(window, nullptr, place.left, place.top, place.width(), place.height(),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace tombrello::windows
