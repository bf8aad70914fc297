#pragma once

#include "cards/deck.h"
#include "cards/hands.h"
#include "cards/outside.h"
#include "cards/random.h"
#include "cards/state.h"

namespace tombrello {

/// Which card a computer seat throws away: by the shape of its hand, not by value.
class Discard {
 public:
  Discard(State& state, Random& random, Deck& deck, Hands& hands, Outside outside)
      : s_(state), random_(random), deck_(deck), hands_(hands), out_(outside) {}

  /// Moves one card to the pile; its slot is 0 then, and `n_mano` stays. The hand holds a card,
  /// none of them a mere copy, and `presenze` agrees with it.
  void scarto_carta(int seat);

 private:
  int suit_to_discard_from(int seat) const;
  int slot_by_shape(int seat) const;
  int slot_of_twin(int seat) const;
  int slot_by_chance(int seat);

  State& s_;
  Random& random_;
  Deck& deck_;
  Hands& hands_;
  Outside out_;
};

}  // namespace tombrello
