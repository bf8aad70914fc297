#include "windows/overlay.h"

#include <utility>

#include "windows/field.h"
#include "windows/panel.h"
#include "windows/picture_controls.h"

namespace tombrello::windows {

Overlay::Overlay(TableView& table, WindowEvents& events) : table_(table), events_(events) {
  table_.set_follower([this] {
    for (auto& [id, placed] : controls_) placed.control->fit(placed.area, table_);
  });
}

Overlay::Placed* Overlay::find(ControlId id) {
  const auto found = controls_.find(id);
  return found == controls_.end() ? nullptr : &found->second;
}

void Overlay::add(ControlId id, std::unique_ptr<Control> control) {
  controls_.insert_or_assign(id, Placed{std::move(control), {}});
}

void Overlay::add_panel(ControlId panel, const std::string& text, const Font& font,
                        long text_colour, long back_colour) {
  add(panel, std::make_unique<Panel>(panel, text, font, text_colour, back_colour, table_, events_));
}

void Overlay::add_field(ControlId field, FieldRule rule, const Font& font) {
  add(field, std::make_unique<Field>(field, rule, font, table_, events_));
}

void Overlay::name_field(ControlId field, const std::string& name) {
  Placed* placed = find(field);
  if (placed == nullptr) return;
  if (auto* line = dynamic_cast<Field*>(placed->control.get())) line->set_name(name);
}

void Overlay::add_shape(ControlId shape, Colour colour) {
  add(shape, std::make_unique<ShapeControl>(colour, table_));
}

void Overlay::add_picture(ControlId control, Picture picture) {
  add(control, std::make_unique<PictureControl>(control, picture, table_, events_));
}

void Overlay::place(ControlId control, const Area& area) {
  if (Placed* placed = find(control)) {
    placed->area = area;
    placed->control->fit(area, table_);
  }
}

// The keyboard doesn't wander on to the next field: it returns to the opening picture, if that
// shows, or to the table.
void Overlay::set_visible(ControlId control, bool visible) {
  Placed* placed = find(control);
  if (placed == nullptr || placed->visible == visible) return;
  placed->visible = visible;
  const HWND window = placed->control->window();
  if (!visible && GetFocus() == window) SetFocus(keyboard_rest());
  ShowWindow(window, visible ? SW_SHOWNA : SW_HIDE);
  placed->control->shown(visible);
}

HWND Overlay::keyboard_rest() const {
  for (const auto& [id, placed] : controls_) {
    const bool picture = dynamic_cast<PictureControl*>(placed.control.get()) != nullptr;
    if (picture && placed.visible) return placed.control->window();
  }
  return table_.handle();
}

bool Overlay::visible(ControlId control) const {
  const auto found = controls_.find(control);
  return found != controls_.end() && found->second.visible;
}

void Overlay::bring_to_front(ControlId control) {
  Placed* placed = find(control);
  if (placed == nullptr) return;
  const HWND window = placed->control->window();
  SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  if (dynamic_cast<Field*>(placed->control.get()) != nullptr) SetFocus(window);
}

void Overlay::set_text(ControlId field, const std::string& text) {
  Placed* placed = find(field);
  if (placed == nullptr) return;
  if (auto* line = dynamic_cast<Field*>(placed->control.get())) line->set_text(text);
}

}  // namespace tombrello::windows
