#pragma once

#include <string>
#include <vector>

#include "seam/window.h"
#include "windows/control.h"

namespace tombrello::windows {

/// A framed text with bold headings. Where it needs more room than it was given, it grows downward
/// to the table's lower edge, and scrolls beyond that.
class Panel : public PaintedWindow, public Control {
 public:
  Panel(ControlId id, const std::string& text, const Font& font, long text_colour, long back_colour,
        TableView& table, WindowEvents& events);
  void fit(const Area& area) override;
  void set_shown(bool shown) override;

 protected:
  HWND window() const override { return handle(); }
  LRESULT message(UINT message, WPARAM w, LPARAM l) override;
  void paint(HDC dc, const RECT& stale) override;

 private:
  struct Line {
    std::wstring text;
    bool heading = false;
  };

  /// Draws the lines, or only measures them; answers their height.
  int lay_out(HDC dc, int width, int top, bool draw) const;
  int height_at(int width) const;
  void scroll(WPARAM how);
  void scroll_to(int top);

  ControlId id_;
  std::vector<Line> lines_;
  Font font_;
  COLORREF text_colour_;
  COLORREF back_colour_;
  WindowEvents& events_;
  int letter_pixels_ = 12;
  int margin_ = 8;
  int needed_ = 0;  ///< height of the whole text, with its margins
  int top_ = 0;     ///< pixels of it that have been scrolled away
};

}  // namespace tombrello::windows
