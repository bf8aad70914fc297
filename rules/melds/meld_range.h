#pragma once

#include <cassert>

#include "cards/slice.h"
#include "cards/state.h"

namespace tombrello {

/// Numbers of cards that mean something.
inline constexpr int kSmallestMeld = 3;
inline constexpr int kPokerCards = 4;         ///< a poker is full
inline constexpr int kTombrelloCards = 7;     ///< a scala from here on counts twice
inline constexpr int kWholeSuitCards = 13;    ///< Ace to King; the partner's last meld doubles
inline constexpr int kTombrelloneCards = 14;  ///< the circle closed; counts five times

/// A seat's list: the melds one behind the other from position 1 on, each closed by the sentinel.
using MeldList = std::array<std::int16_t, kListPositions + 1>;

/// One meld of a list: the positions of its first and its last card.
struct Meld {
  int first;
  int last;

  constexpr int cards() const { return last - first + 1; }
  constexpr int sentinel() const { return last + 1; }
};

/// The meld whose first card stands at `first`; the list is closed behind it.
inline Meld meld_from(const MeldList& list, int first) {
  Meld meld{first, first - 1};
  while (list[meld.sentinel()] != kSentinel) ++meld.last;
  return meld;
}

/// The meld whose last card stands at `last`.
inline Meld meld_up_to(const MeldList& list, int last) {
  Meld meld{last, last};
  while (meld.first > 1 && list[meld.first - 1] != kSentinel) --meld.first;
  return meld;
}

/// A meld's kind isn't stored: its last two suits tell it, equal for a scala, different for a
/// tris or poker. It has two cards or more.
inline bool is_scala(const MeldList& list, Meld meld) {
  assert(meld.cards() >= 2);
  return Seme(list[meld.last]) == Seme(list[meld.last - 1]);
}

/// The ranks of the cards that go on a scala: one on each of its ends.
inline Slice open_ends(const MeldList& list, Meld scala) {
  return Slice::of(rank_before(ValCarta(list[scala.first]))) |
         Slice::of(rank_after(ValCarta(list[scala.last])));
}

/// The melds of a seat's list from left to right: `for (const Meld meld : melds_of(state, seat))`.
/// The meld that is looked at may grow meanwhile, and the list with it.
class MeldRange {
 public:
  struct End {};
  class Iterator {
   public:
    Iterator(const MeldList& list, const std::uint8_t& length) : list_(list), length_(length) {
      find(1);
    }
    Meld operator*() const { return meld_; }
    Iterator& operator++() {
      while (list_[meld_.sentinel()] != kSentinel) ++meld_.last;
      find(meld_.sentinel() + 1);
      return *this;
    }
    bool operator==(End) const { return meld_.first > length_; }

   private:
    void find(int first) {
      assert(length_ <= kListPositions && (length_ == 0 || list_[length_] == kSentinel));
      meld_ = first > length_ ? Meld{first, first - 1} : meld_from(list_, first);
    }

    const MeldList& list_;
    const std::uint8_t& length_;
    Meld meld_{1, 0};
  };

  MeldRange(const MeldList& list, const std::uint8_t& length) : list_(list), length_(length) {}
  Iterator begin() const { return {list_, length_}; }
  static End end() { return {}; }

 private:
  const MeldList& list_;
  const std::uint8_t& length_;
};

inline MeldRange melds_of(const State& state, int seat) {
  return {state.calate[seat], state.n_calate[seat]};
}

}  // namespace tombrello
