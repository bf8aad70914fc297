#pragma once

#include <windows.h>

#include <string>

#include "seam/window.h"

namespace tombrello::windows {

/// A box that waits for an answer.
class Question {
 public:
  /// Modal. Closing the box answers OK or No.
  Answer ask(HWND frame, const std::string& text, Buttons buttons);
  bool waits() const { return box_ != nullptr; }
  void take_down();

 private:
  static HRESULT CALLBACK follow(HWND box, UINT what, WPARAM, LPARAM, LONG_PTR self);

  HWND box_ = nullptr;
};

}  // namespace tombrello::windows
