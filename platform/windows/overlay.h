#pragma once

#include <map>
#include <memory>
#include <string>

#include "windows/control.h"

namespace tombrello::windows {

/// The controls that lie over the table, by their numbers. A number that nobody added is
/// ignored.
class Overlay {
 public:
  Overlay(TableView& table, WindowEvents& events);

  void add_panel(ControlId panel, const std::string& text, const Font& font, long text_colour,
                 long back_colour);
  void add_field(ControlId field, FieldRule rule, const Font& font);
  void name_field(ControlId field, const std::string& name);
  void add_shape(ControlId shape, Colour colour);
  void add_picture(ControlId control, Picture picture);

  void place(ControlId control, const Area& area);
  void set_visible(ControlId control, bool visible);
  bool visible(ControlId control) const;
  void bring_to_front(ControlId control);
  void set_text(ControlId field, const std::string& text);

 private:
  struct Placed {
    std::unique_ptr<Control> control;
    Area area;
    bool visible = false;
  };

  void add(ControlId id, std::unique_ptr<Control> control);
  Placed* find(ControlId id);
  HWND keyboard_rest() const;

  TableView& table_;
  WindowEvents& events_;
  std::map<ControlId, Placed> controls_;
};

}  // namespace tombrello::windows
