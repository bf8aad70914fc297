#include "shell/pacing.h"

namespace tombrello {

int Pacing::milliseconds(float x, float ritardo_base) {
  return static_cast<int>(double{x} * 6500 / double{ritardo_base});
}

void Pacing::ritardo(float x) {
  s_.timer_scaduto = false;
  timer_.start(milliseconds(x, s_.ritardo_base));
  while (!s_.timer_scaduto) serve_events();
}

void Pacing::serve_events() {
  if (!window_.closing()) window_.serve_events();
  if (window_.closing()) throw Leaving{};
}

}  // namespace tombrello
