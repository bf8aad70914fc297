#pragma once

#include <chrono>

#include "cards/clock.h"

namespace tombrello {

/// Nanoseconds of the system's clock.
class SystemClock : public Clock {
 public:
  std::uint64_t reading() override {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(
        std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
  }
};

}  // namespace tombrello
