#pragma once

#include <windows.h>

#include "painting/region.h"

namespace tombrello::windows {

/// A window of the system, whose messages come to a method.
class NativeWindow {
 public:
  NativeWindow() = default;
  NativeWindow(const NativeWindow&) = delete;
  NativeWindow& operator=(const NativeWindow&) = delete;
  virtual ~NativeWindow();

  HWND handle() const { return handle_; }  ///< null before `create`, and once it is destroyed

 protected:
  /// Not shown, not yet of any size. Handlers may be called from now on.
  void create(const wchar_t* kind, DWORD style, HWND parent);
  /// Must not throw: the system stands between it and whoever serves events.
  virtual LRESULT message(UINT message, WPARAM w, LPARAM l);
  /// It is something to be read out, as its text stands whenever `read_out` is called.
  void be_alert() { alert_ = true; }
  void read_out() const;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l);

  HWND handle_ = nullptr;
  bool alert_ = false;
  bool described_ = false;
};

/// A window that paints all of itself.
class PaintedWindow : public NativeWindow {
 protected:
  LRESULT message(UINT message, WPARAM w, LPARAM l) override;
  /// `stale` is the part that isn't shown as it should be.
  virtual void paint(HDC dc, const RECT& stale) = 0;
  /// Has it painted anew, soon.
  void repaint() const { InvalidateRect(handle(), nullptr, FALSE); }
};

inline RECT to_rect(const painting::PixelRect& rect) {
  return {rect.left, rect.top, rect.right, rect.bottom};
}
painting::PixelRect client_pixels(HWND window);  ///< from its own top left corner
void move_to(HWND window, const painting::PixelRect& place);

}  // namespace tombrello::windows
