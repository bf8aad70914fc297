#pragma once

#include "cards/deck.h"
#include "cards/hands.h"
#include "cards/outside.h"
#include "cards/state.h"

namespace tombrello {

/// Whether a computer seat opens its turn with a new meld. The whole search works on
/// `presenze`: suit-ranks are marked, copies aren't counted.
class MeldDecision {
 public:
  MeldDecision(State& state, Deck& deck, Hands& hands, Outside outside)
      : s_(state), deck_(deck), hands_(hands), out_(outside) {}

  /// Lays down a new meld if the seat's cards and one of the candidates make one, taking that
  /// candidate; `scelta_pesca` tells which. Starts from `presenze_salvate`. After a hit
  /// `presenze` is stale; without one hand, pile and stock are as they were.
  void decido_calata(int seat);

 private:
  void try_candidate(int seat, int candidate);
  bool lay_scala(int seat, int candidate);
  bool lay_same_rank(int seat, int candidate);
  bool has_room(int seat, int cards) const;
  void take_candidate(int seat, int candidate);
  void take_meld_from_hand(int seat);
  void close_meld(int seat);

  State& s_;
  Deck& deck_;
  Hands& hands_;
  Outside out_;
};

}  // namespace tombrello
