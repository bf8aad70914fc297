#pragma once

#include "cards/geometry.h"
#include "cards/state.h"
#include "melds/meld_range.h"

namespace tombrello {

/// What may be laid down: judges, orders and adds to the lists of melds in `calate`.
class Melds {
 public:
  Melds(State& state, const Geometry& geometry) : s_(state), g_(geometry) {}

  /// Judges the proposal of `n_selezionate` cards that stands as the last meld of the list of
  /// seat 1 or 3; `calata_ok` is the verdict. A single card goes to the meld whose strip x (logical
  /// units) falls in. The caller takes a refused proposal out again, and orders the list after an
  /// accepted one.
  void controllo_calata(int seat, float x);

  /// Puts every meld of the list in the order in which it follows the circle of ranks. A tris
  /// or poker turns by one place.
  void ord_crescente_calata(int seat);

  /// Move the one-card meld at the end of the list into the meld whose last card stands at
  /// `pos_attacco`, if it fits. The caller promises a tris or poker, or a scala of the card's
  /// suit, and orders the list after an addition to a scala.
  void attacco_poker(int seat);
  void attacco_scala(int seat);

 private:
  bool find_target(int seat, float x);
  bool add_single_card(int seat);
  bool all_valid(int seat) const;
  void join_neighbours(int seat);
  bool meet(int seat, Meld before, Meld after) const;
  void remove_sentinel(int seat, int sentinel);
  void order_meld(int seat, Meld meld);
  bool stands_alone_behind(int seat, int target) const;
  void insert_before_last(int seat);

  State& s_;
  const Geometry& g_;
};

/// The suit that a tris lacks whose cards have these three suits.
constexpr int missing_suit(int suit1, int suit2, int suit3) {
  return 10 - suit1 - suit2 - suit3;
}

}  // namespace tombrello
