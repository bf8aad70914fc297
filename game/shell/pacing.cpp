#include "shell/pacing.h"

namespace tombrello {

int Pacing::milliseconds(float x, float ritardo_base) {
  return static_cast<int>(double{x} * 6500 / double{ritardo_base});
}

void Pacing::ritardo(float x) {
  s_.timer_scaduto = false;
  timer_.start(hurried_ ? 0 : milliseconds(x, s_.ritardo_base));
  pausing_ = true;
  while (!s_.timer_scaduto) serve_events();
  pausing_ = false;
}

void Pacing::set_hurried(bool hurried) {
  hurried_ = hurried;
  if (hurried_ && pausing_) timer_.start(0);
}

void Pacing::serve_events() {
  before_wait_();
  if (!window_.closing()) window_.serve_events();
  if (window_.closing()) throw Leaving{};
}

}  // namespace tombrello
