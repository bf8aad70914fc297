#pragma once

#include "cards/geometry.h"
#include "cards/state.h"

namespace tombrello {

/// The lists of melds in `calate`: each meld's cards, then the sentinel 1000; positions 1..30.
/// A meld's kind isn't stored: its last two suits tell it, equal for a scala, different for a
/// tris or poker.
class Melds {
 public:
  Melds(State& state, const Geometry& geometry) : s_(state), g_(geometry) {}

  /// Judges the proposal that stands as the last meld of the list of seat 1 or 3; `calata_ok`
  /// is the verdict. A single card goes to the meld whose strip x (logical units) falls in.
  /// The caller takes a refused proposal out again, and orders the list after an accepted one.
  void controllo_calata(int seat, float x);

  /// Puts every meld of the list in the order in which it follows the circle of ranks. A tris
  /// or poker turns by one place.
  void ord_crescente_calata(int seat);

  /// Move the one-card meld at the end of the list into the meld whose last card stands at
  /// `pos_attacco`, if it fits. The caller promises a tris or poker, or a scala of the card's
  /// suit, and orders the list after an addition to a scala.
  void attacco_poker(int seat);
  void attacco_scala(int seat);

  /// Position of the first card of the meld whose last card stands at `last`.
  int first_of_meld(int seat, int last) const;
  bool is_scala(int seat, int last) const;

 private:
  bool find_target(int seat, float x);
  bool add_single_card(int seat);
  bool all_valid(int seat) const;
  void join_neighbours(int seat);
  bool joins_at(int seat, int sentinel) const;
  void remove_sentinel(int seat, int sentinel);
  void order_meld(int seat, int first, int count);
  void insert_before_last(int seat);

  State& s_;
  const Geometry& g_;
};

/// True if a card of rank `rank` goes on an end of a scala running from `first` to `last`.
bool fits_scala(int rank, int first, int last);
/// The suit that a tris lacks whose cards have these three suits.
constexpr int missing_suit(int suit1, int suit2, int suit3) {
  return 10 - suit1 - suit2 - suit3;
}
/// True if rank `next` follows `rank` on the circle of ranks, where the Ace follows the King.
constexpr bool follows(int rank, int next) {
  return next - rank == 1 || next - rank == -12;
}

}  // namespace tombrello
