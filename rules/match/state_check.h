#pragma once

#include <string>

#include "cards/state.h"

namespace tombrello {

/// What must hold whenever a turn is over.
struct StateCheck {
  /// The turn ended the hand: it may have gone without a discard.
  bool hand_over = false;
  /// The deck that was dealt was a permutation. A replayed one need not be.
  bool whole_deck = true;
};

/// Answers what is wrong with the state, or nothing.
std::string check_state(const State& state, StateCheck expected);

}  // namespace tombrello
