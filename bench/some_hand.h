#pragma once

#include "tools/simulation/simulation.h"

namespace tombrello {

/// A hand that has come some way, with a full fan for seat 1.
inline State some_hand() {
  Simulation simulation(ScriptKind::melder, 1);
  simulation.play_hand(40, false);
  State state = simulation.state();
  state.nomi = {"TU", "OVEST", "NORD", "EST"};
  for (int k = state.n_mano[1] + 1; k <= kHandSlots; ++k) {
    state.mano[1][k] = static_cast<std::int16_t>(7 * k);
  }
  state.n_mano[1] = kHandSlots;
  state.phase = Phase::hand;
  return state;
}

}  // namespace tombrello
