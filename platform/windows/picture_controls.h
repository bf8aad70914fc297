#pragma once

#include "raster/bitmap.h"
#include "seam/window.h"
#include "windows/control.h"

namespace tombrello::windows {

/// A bar that invites a press, which is a press on the table under it.
class ShapeControl : public NativeWindow, public Control {
 public:
  ShapeControl(Colour colour, TableView& table);
  HWND window() const override { return handle(); }
  void fit(const Area& area, const TableView& table) override;

 protected:
  LRESULT message(UINT message, WPARAM w, LPARAM l) override;

 private:
  Colour colour_;
  BackBuffer buffer_;
};

/// A picture that can be clicked, and that takes the keyboard while it shows.
class PictureControl : public NativeWindow, public Control {
 public:
  PictureControl(ControlId id, Picture picture, TableView& table, WindowEvents& events);
  HWND window() const override { return handle(); }
  void fit(const Area& area, const TableView& table) override;
  void shown(bool visible) override;

 protected:
  LRESULT message(UINT message, WPARAM w, LPARAM l) override;

 private:
  void paint();

  ControlId id_;
  Picture picture_;
  TableView& table_;
  WindowEvents& events_;
  BackBuffer buffer_;
};

}  // namespace tombrello::windows
