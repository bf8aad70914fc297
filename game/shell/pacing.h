#pragma once

#include "cards/outside.h"
#include "cards/state.h"
#include "seam/timer.h"
#include "seam/window.h"

namespace tombrello {

/// Unwinds the game's chain of calls when the player leaves. Thrown by the wait alone, never
/// through a handler.
struct Leaving {};

/// The waits of the game. All of them serve events, and all of them end the chain when the
/// window is closing.
class Pacing : public Wait {
 public:
  Pacing(State& state, Window& window, Timer& timer) : s_(state), window_(window), timer_(timer) {}

  void ritardo(float x) override;
  void serve_events() override;
  void Timer1_Timer() { s_.timer_scaduto = true; }

  /// Whole milliseconds of a pause, from the exact value of the factor.
  static int milliseconds(float x, float ritardo_base);

 private:
  State& s_;
  Window& window_;
  Timer& timer_;
};

}  // namespace tombrello
