#pragma once

#include "raster/bitmap.h"
#include "seam/window.h"
#include "windows/control.h"

namespace tombrello::windows {

/// A bar that invites a press, which is a press on the table under it.
class ShapeControl : public PaintedWindow, public Control {
 public:
  ShapeControl(Colour colour, TableView& table);
  void fit(const Area& area) override;

 protected:
  HWND window() const override { return handle(); }
  LRESULT message(UINT message, WPARAM w, LPARAM l) override;
  void paint(HDC dc, const RECT& stale) override { buffer_.show(dc, stale); }

 private:
  Colour colour_;
  BackBuffer buffer_;
};

/// A picture that can be clicked, and that takes the keyboard while it shows. Its pixels are kept
/// no longer than that.
class PictureControl : public PaintedWindow, public Control {
 public:
  PictureControl(ControlId id, Picture picture, TableView& table, WindowEvents& events);
  void fit(const Area& area) override;
  void set_shown(bool shown) override;
  bool rests_keyboard() const override { return true; }

 protected:
  HWND window() const override { return handle(); }
  LRESULT message(UINT message, WPARAM w, LPARAM l) override;
  void paint(HDC dc, const RECT& stale) override;

 private:
  void prepare(painting::PixelSize size);

  ControlId id_;
  Picture picture_;
  WindowEvents& events_;
  BackBuffer buffer_;
  painting::PixelSize asked_for_;
};

}  // namespace tombrello::windows
