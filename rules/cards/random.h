#pragma once

#include <cassert>
#include <cstdint>
#include <random>

#include "cards/clock.h"

namespace tombrello {

/// The one source of chance. After a reset and a seeding, the numbers depend on the reset value
/// and the clock's reading alone.
class Random {
 public:
  /// Starts from the clock: a replayed hand is played without a shuffle, and its random choices
  /// aren't to be the same in every run.
  explicit Random(Clock& clock) : clock_(clock) { seed_from_clock(); }

  /// Starts the sequence over; each negative number is a sequence of its own.
  void reset(int negative) {
    assert(negative < 0);
    engine_.seed(static_cast<std::uint64_t>(std::int64_t{negative}));
  }
  void seed_from_clock() { engine_.seed(engine_() ^ clock_.reading()); }
  /// Uniform, 0 <= r < 1.
  double next() { return static_cast<double>(engine_() >> 11U) * 0x1p-53; }

 private:
  Clock& clock_;
  std::mt19937_64 engine_;
};

}  // namespace tombrello
