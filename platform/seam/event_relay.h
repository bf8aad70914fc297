#pragma once

#include "seam/window.h"

namespace tombrello {

/// Passes everything on to whoever listens; says nothing while nobody does.
class EventRelay : public WindowEvents {
 public:
  void set_target(WindowEvents* target) { target_ = target; }

  void pressed(Button button, float x, float y) override {
    if (target_ != nullptr) target_->pressed(button, x, y);
  }
  void moved(float x, float y) override {
    if (target_ != nullptr) target_->moved(x, y);
  }
  void entry_chosen(EntryId entry) override {
    if (target_ != nullptr) target_->entry_chosen(entry);
  }
  void control_clicked(ControlId control) override {
    if (target_ != nullptr) target_->control_clicked(control);
  }
  void control_key_pressed(ControlId control) override {
    if (target_ != nullptr) target_->control_key_pressed(control);
  }
  void field_changed(ControlId field, const std::string& text) override {
    if (target_ != nullptr) target_->field_changed(field, text);
  }
  void field_confirmed(ControlId field) override {
    if (target_ != nullptr) target_->field_confirmed(field);
  }
  void key_pressed(Key key) override {
    if (target_ != nullptr) target_->key_pressed(key);
  }
  void key_released(Key key) override {
    if (target_ != nullptr) target_->key_released(key);
  }
  void place_pressed(int place, Button button) override {
    if (target_ != nullptr) target_->place_pressed(place, button);
  }
  void timer_ticked() override {
    if (target_ != nullptr) target_->timer_ticked();
  }

 private:
  WindowEvents* target_ = nullptr;
};

}  // namespace tombrello
