#pragma once

#include <windows.h>

#include "seam/surface.h"
#include "windows/table_view.h"

namespace tombrello::windows {

/// Something that lies over the table and follows it.
class Control {
 public:
  virtual ~Control() = default;
  virtual HWND window() const = 0;
  virtual void fit(const Area& area, const TableView& table) = 0;
  /// It has come into sight, or gone out of it.
  virtual void shown(bool) {}
};

inline constexpr DWORD kControlStyle = WS_CHILD | WS_CLIPSIBLINGS;

}  // namespace tombrello::windows
