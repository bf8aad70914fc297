#include <utility>

#include "shell/program.h"

namespace tombrello {

void Program::before_wait() {
  mark_.refresh();
  if (!trouble_.empty() && !pacing_.is_pausing()) {
    chronicle_.remark(std::exchange(trouble_, {}));
  }
  chronicle_.show(mark_.by_keys());
}

void Program::moved(float x, float y) {
  pointer_.Form_MouseMove(x, y);
  mark_.pointer_moved(x, y);
}

// A panel over the table takes the keys: who has read it doesn't mean a card under it.
void Program::key_pressed(Key key) {
  if (panels_.any_open() && key != Key::help) {
    if (key == Key::enter || key == Key::space || key == Key::escape) panels_.hide_all();
    return;
  }
  switch (key) {
    case Key::enter:
      return press_enter();
    case Key::space:
      return press_space();
    case Key::help:
      return panels_.menu_help_Click();
    case Key::escape:
      return;
    default:
      return mark_.move(key);
  }
}

void Program::key_released(Key key) {
  if (key == Key::space) pacing_.set_hurried(false);
}

void Program::press_enter() {
  if (s_.phase == Phase::opening) {
    s_.click_avvio = true;
  } else if (s_.phase == Phase::count && window_.enabled(menu_continue)) {
    menu_continue_Click();
  } else {
    press_at(mark_.point(Button::left), Button::left);
  }
}

// While the game pauses, it hurries; when it waits for the player, it is the right button.
void Program::press_space() {
  if (pacing_.is_pausing()) return pacing_.set_hurried(true);
  if (s_.phase == Phase::opening) s_.click_avvio = true;
  press_at(mark_.point(Button::right), Button::right);
}

void Program::place_pressed(int place, Button button) {
  press_at(mark_.point(place, button), button);
}

// As the mouse would do it: the move gives the pointer its shape, and the press goes by it.
void Program::press_at(std::optional<PressPoint> point, Button button) {
  if (!point) return;
  pointer_.Form_MouseMove(point->x, point->y);
  pressed(button, point->x, point->y);
}

}  // namespace tombrello
