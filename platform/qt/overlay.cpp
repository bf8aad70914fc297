#include "qt/overlay.h"

#include <utility>

namespace tombrello::qt {

Overlay::Overlay(TableWidget& table, WindowEvents& events) : table_(table), events_(events) {
  table_.set_follower([this] {
    for (auto& [id, placed] : controls_) {
      if (!placed.control->widget().isHidden()) fit(placed);
    }
  });
}

Overlay::Placed* Overlay::find(ControlId id) {
  const auto found = controls_.find(id);
  return found == controls_.end() ? nullptr : &found->second;
}

void Overlay::add(ControlId id, std::unique_ptr<Control> control) {
  control->widget().hide();
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
  if (Placed* placed = find(field)) {
    placed->control->widget().setAccessibleName(QString::fromStdString(name));
  }
}

void Overlay::add_shape(ControlId shape, Colour colour) {
  add(shape, std::make_unique<ShapeControl>(colour, table_));
}

void Overlay::add_picture(ControlId control, Picture picture) {
  add(control,
      std::make_unique<PictureControl>(control, picture, table_, table_.pictures(), events_));
}

void Overlay::place(ControlId control, const Area& area) {
  Placed* placed = find(control);
  if (placed == nullptr) return;
  placed->area = area;
  if (!placed->control->widget().isHidden()) fit(*placed);
}

void Overlay::fit(Placed& placed) {
  placed.control->fit(placed.area, table_.geometry_in_pixels());
}

// The keyboard doesn't wander on to the next field: it returns to the opening picture, if that
// shows, or to the table.
void Overlay::set_visible(ControlId control, bool visible) {
  Placed* placed = find(control);
  if (placed == nullptr) return;
  QWidget& widget = placed->control->widget();
  if (!visible && widget.hasFocus()) keyboard_rest(&widget).setFocus();
  if (visible) fit(*placed);
  widget.setVisible(visible);
}

QWidget& Overlay::keyboard_rest(const QWidget* leaving) {
  for (auto& [id, placed] : controls_) {
    QWidget& widget = placed.control->widget();
    const bool picture = dynamic_cast<PictureControl*>(placed.control.get()) != nullptr;
    if (picture && &widget != leaving && widget.isVisible()) return widget;
  }
  return table_;
}

bool Overlay::visible(ControlId control) const {
  const auto found = controls_.find(control);
  return found != controls_.end() && !found->second.control->widget().isHidden();
}

void Overlay::bring_to_front(ControlId control) {
  Placed* placed = find(control);
  if (placed == nullptr) return;
  placed->control->widget().raise();
  if (dynamic_cast<Field*>(placed->control.get()) != nullptr) placed->control->widget().setFocus();
}

void Overlay::set_text(ControlId field, const std::string& text) {
  Placed* placed = find(field);
  if (placed == nullptr) return;
  if (auto* line = dynamic_cast<Field*>(placed->control.get())) line->set_text(text);
}

}  // namespace tombrello::qt
