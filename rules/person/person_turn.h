#pragma once

#include <array>

#include "cards/deck.h"
#include "cards/geometry.h"
#include "cards/hands.h"
#include "cards/outside.h"
#include "cards/state.h"
#include "melds/melds.h"

namespace tombrello {

/// The turn of seat 1: waits for codes in `azione`, posted with the click's x in `x_click`, and
/// carries them out until the turn is over.
class PersonTurn {
 public:
  PersonTurn(State& state, const Geometry& geometry, Deck& deck, Hands& hands, Melds& melds,
             Outside outside)
      : s_(state), g_(geometry), deck_(deck), hands_(hands), melds_(melds), out_(outside) {}

  /// One whole turn. It ends with a discard, or when the last cards are laid down. Pile and stock
  /// hold a card each.
  void Gioco1();

 private:
  void wait_for_action();
  bool carry_out();  ///< answers whether the turn is over
  void draw_from_pile();
  void draw_from_stock();
  void select_or_unselect();
  bool lay_on(int side);
  void collect_selected(int side);
  bool append_proposal(int side);
  void take_back_proposal(int side);
  void refuse();
  void tell_refusal(Refusal why, Cards meld = {});
  Cards meld_at(int side, int last) const;  ///< of the meld whose last card stands at `last`
  void tell_acceptance(int side);
  std::array<std::int16_t, kHandSlots> selected_cards() const;
  void accept(int side);
  bool discard();
  bool lower_selected();
  void find_slot_cliccato();

  State& s_;
  const Geometry& g_;
  Deck& deck_;
  Hands& hands_;
  Melds& melds_;
  Outside out_;
};

}  // namespace tombrello
