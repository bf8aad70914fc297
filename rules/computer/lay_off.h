#pragma once

#include "cards/deck.h"
#include "cards/hands.h"
#include "cards/outside.h"
#include "cards/state.h"
#include "melds/melds.h"

namespace tombrello {

/// How a computer seat adds cards to the melds of its side.
class LayOff {
 public:
  LayOff(State& state, Deck& deck, Hands& hands, Melds& melds, Outside outside)
      : s_(state), deck_(deck), hands_(hands), melds_(melds), out_(outside) {}

  /// Adds at most one card to each meld of the owner's list. While `ha_pescato` is false, the
  /// last slot of the hand is a copy of the top of the pile, and choosing it is the draw of the
  /// turn. `presenze` agrees with the hand, before and after.
  void Provo_Attacco(int seat, int owner);

 private:
  struct Target;  // the meld that is being looked at

  int slot_for_scala(const Target& target) const;
  int slot_for_same_rank(const Target& target) const;
  Slice ranks_to_add(const Target& target, int suit) const;
  void take_pile(int seat);
  void lay(const Target& target, int slot);
  void add_to_meld(const Target& target, std::int16_t card);

  State& s_;
  Deck& deck_;
  Hands& hands_;
  Melds& melds_;
  Outside out_;
};

}  // namespace tombrello
