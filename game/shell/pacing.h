#pragma once

#include <functional>
#include <utility>

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
  /// `before_wait` runs before each pass in which the window may sleep.
  Pacing(State& state, Window& window, Timer& timer, std::function<void()> before_wait)
      : s_(state), window_(window), timer_(timer), before_wait_(std::move(before_wait)) {}

  void ritardo(float x) override;
  void serve_events() override;
  void Timer1_Timer() { s_.timer_scaduto = true; }
  bool is_pausing() const { return pausing_; }
  /// While hurried, pauses pass at once, the one that runs too.
  void set_hurried(bool hurried);

  /// Whole milliseconds of a pause, from the exact value of the factor.
  static int milliseconds(float x, float ritardo_base);

 private:
  State& s_;
  Window& window_;
  Timer& timer_;
  std::function<void()> before_wait_;
  bool pausing_ = false;
  bool hurried_ = false;
};

}  // namespace tombrello
