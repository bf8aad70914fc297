#pragma once

#include <windows.h>

#include "painting/overlay.h"
#include "windows/table_view.h"

namespace tombrello::windows {

/// What lies over the table is a window of its own.
class Control : public painting::Control {
 public:
  explicit Control(TableView& table) : table_(table) {}
  void set_shown(bool shown) override { ShowWindow(window(), shown ? SW_SHOWNA : SW_HIDE); }
  void bring_to_front() override {
    SetWindowPos(window(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  bool has_keyboard() override { return GetFocus() == window(); }
  void take_keyboard() override { SetFocus(window()); }

 protected:
  virtual HWND window() const = 0;

  TableView& table_;
};

inline constexpr DWORD kControlStyle = WS_CHILD | WS_CLIPSIBLINGS;

}  // namespace tombrello::windows
