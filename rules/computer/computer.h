#pragma once

#include "cards/deck.h"
#include "cards/hands.h"
#include "cards/outside.h"
#include "cards/random.h"
#include "cards/slice.h"
#include "cards/state.h"
#include "melds/melds.h"

namespace tombrello {

/// Plays the turns of seats 2, 3 and 4. A seat weighs, in this order: a new meld, with the top
/// of the pile or the next stock card; additions to its own and its partner's melds, with the
/// top of the pile at hand; a draw from the stock; a discard.
class Computer {
 public:
  Computer(State& state, Random& random, Deck& deck, Hands& hands, Melds& melds, Outside outside)
      : s_(state), random_(random), deck_(deck), hands_(hands), melds_(melds), out_(outside) {}

  /// One whole turn of `di_turno`, 2..4. Pile and stock hold a card each.
  void Gioco2();

  /// Takes a card, source 1 the pile and 2 the stock, into the next slot of the hand.
  void pesco_carta(int seat, int source);
  /// Lays down a new meld if the seat's cards and one of the candidates make one, taking that
  /// candidate; `scelta_pesca` tells which. Starts from `presenze_salvate`.
  void decido_calata(int seat);
  /// Adds at most one card to each meld of the owner's list. While `ha_pescato` is false, the
  /// last slot of the hand is a copy of the top of the pile. `presenze` agrees with the hand.
  void Provo_Attacco(int seat, int owner);
  /// Moves one card to the pile; its slot is 0 then. `presenze` agrees with the hand.
  void scarto_carta(int seat);

 private:
  struct Target;  // the meld that is being looked at

  int first_step();
  int run_step(int step);
  void try_top_of_pile(int seat);
  void draw_instead(int seat);
  int discard_if_drawn();

  void try_candidate(int seat, int candidate);
  bool lay_scala(int seat, int candidate);
  bool lay_same_rank(int seat, int candidate);
  bool has_room(int seat, int cards) const;
  void take_meld_from_hand(int seat);
  void close_meld(int seat);
  Slice slice(int seat, int suit) const;

  int slot_for_scala(const Target& target) const;
  int slot_for_same_rank(const Target& target) const;
  Slice ranks_to_add(const Target& target, int suit) const;
  void lay_off(const Target& target, int slot);
  void tidy_hand(int seat);

  int suit_to_discard_from(int seat) const;
  int slot_by_shape(int seat) const;
  int slot_of_twin(int seat) const;
  int slot_by_chance(int seat);
  int first_slot_with(int seat, int code) const;

  State& s_;
  Random& random_;
  Deck& deck_;
  Hands& hands_;
  Melds& melds_;
  Outside out_;
};

}  // namespace tombrello
