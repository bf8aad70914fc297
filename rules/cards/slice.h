#pragma once

#include <bit>
#include <cassert>
#include <cstdint>
#include <cstring>

#include "cards/card.h"

namespace tombrello {

/// A set of ranks, such as those that a hand holds of one suit: bit r - 1 stands for rank r. The
/// searches of the computer seats look for patterns in it.
class Slice {
 public:
  explicit constexpr Slice(unsigned bits) : bits_(bits) {}
  static constexpr Slice of(int rank) {
    assert(1 <= rank && rank <= kRanks);
    return Slice(1U << (rank - 1));
  }
  /// `characters` are thirteen, '*' or '_', Ace to King.
  static Slice read(const char* characters) {
    return Slice(read_eight(characters) | read_eight(characters + kRanks - 8) << (kRanks - 8));
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
  // '*' and '_' differ in their lowest bit; the product gathers those of eight characters.
  static unsigned read_eight(const char* characters) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, characters, sizeof eight);
    const std::uint64_t held = ~eight & 0x0101010101010101U;
    return static_cast<unsigned>(held * 0x0102040810204080U >> 56U);
  }

  unsigned bits_;
};

}  // namespace tombrello
