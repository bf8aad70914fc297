#pragma once

#include <bit>
#include <cassert>

#include "cards/card.h"

namespace tombrello {

inline constexpr unsigned kAllRanks = (1U << kRanks) - 1;

/// A set of ranks, such as those that a hand holds of one suit: bit r - 1 stands for rank r. The
/// searches of the computer seats look for patterns in it.
class Slice {
 public:
  explicit constexpr Slice(unsigned bits) : bits_(bits) {}
  static constexpr Slice of(int rank) {
    assert(1 <= rank && rank <= kRanks);
    return Slice(1U << (rank - 1));
  }

  constexpr unsigned bits() const { return bits_; }
  constexpr bool empty() const { return bits_ == 0; }
  constexpr int count() const { return std::popcount(bits_); }
  constexpr Slice operator|(Slice other) const { return Slice(bits_ | other.bits_); }
  constexpr Slice operator&(Slice other) const { return Slice(bits_ & other.bits_); }
  constexpr Slice without(int rank) const { return Slice(bits_ & ~of(rank).bits_); }
  constexpr bool holds(int rank) const { return (bits_ & of(rank).bits_) != 0; }
  /// The lowest rank held; there must be one.
  constexpr int lowest() const {
    assert(!empty());
    return std::countr_zero(bits_) + 1;
  }
  /// True if the slice holds none of the ranks from..to.
  constexpr bool lacks(int from, int to) const {
    return (bits_ & ((2U << (to - 1)) - (1U << (from - 1)))) == 0;
  }

 private:
  unsigned bits_;
};

}  // namespace tombrello
