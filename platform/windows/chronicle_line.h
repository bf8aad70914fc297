#pragma once

#include <string>

#include "windows/letters.h"
#include "windows/native_window.h"

namespace tombrello::windows {

/// The line below the table, in the desktop's own font. The left part keeps its place; of the
/// right one, where it is too wide, the beginning goes.
class ChronicleLine : public PaintedWindow {
 public:
  void create_in(HWND frame);
  void tell(const std::string& now, const std::string& then);
  /// In pixels, on the screen where the window is now.
  int height();

 protected:
  LRESULT message(UINT message, WPARAM w, LPARAM l) override;
  void paint(HDC dc, const RECT& stale) override;

 private:
  void choose_letters();

  std::wstring now_;
  std::wstring then_;
  OwnFont plain_;
  OwnFont bold_;
  UINT dots_ = 0;  ///< an inch, for which the letters are
};

}  // namespace tombrello::windows
