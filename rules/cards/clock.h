#pragma once

#include <cstdint>

namespace tombrello {

/// The clock that seeds chance. One that stands still deals the same cards every time.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Any unit, any origin; all that counts is that readings differ.
  virtual std::uint64_t reading() = 0;
};

}  // namespace tombrello
