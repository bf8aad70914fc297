#include "painting/overlay.h"

namespace tombrello::painting {

Overlay::Placed* Overlay::find(ControlId id) {
  const auto found = controls_.find(id);
  return found == controls_.end() ? nullptr : &found->second;
}

void Overlay::add(ControlId id, std::unique_ptr<Control> control) {
  control->set_shown(false);
  controls_.insert_or_assign(id, Placed{std::move(control), {}});
}

void Overlay::follow_table() {
  for (auto& [id, placed] : controls_) {
    if (placed.visible) placed.control->fit(placed.area);
  }
}

void Overlay::place(ControlId control, const Area& area) {
  Placed* placed = find(control);
  if (placed == nullptr) return;
  placed->area = area;
  if (placed->visible) placed->control->fit(area);
}

// The keyboard doesn't wander on to the next field.
void Overlay::set_visible(ControlId control, bool visible) {
  Placed* placed = find(control);
  if (placed == nullptr || placed->visible == visible) return;
  placed->visible = visible;
  if (visible) placed->control->fit(placed->area);
  if (!visible && placed->control->has_keyboard()) give_keyboard_back();
  placed->control->set_shown(visible);
}

void Overlay::give_keyboard_back() {
  for (auto& [id, placed] : controls_) {
    if (placed.visible && placed.control->rests_keyboard()) return placed.control->take_keyboard();
  }
  keyboard_to_table_();
}

bool Overlay::visible(ControlId control) const {
  const auto found = controls_.find(control);
  return found != controls_.end() && found->second.visible;
}

void Overlay::bring_to_front(ControlId control) {
  if (Placed* placed = find(control)) placed->control->bring_to_front();
}

void Overlay::name_field(ControlId field, const std::string& name) {
  if (Placed* placed = find(field)) placed->control->set_name(name);
}

void Overlay::set_text(ControlId field, const std::string& text) {
  if (Placed* placed = find(field)) placed->control->set_text(text);
}

}  // namespace tombrello::painting
