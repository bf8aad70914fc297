#pragma once

#include "cards/state.h"

namespace tombrello {

/// Upkeep of hands: a card leaves a hand by its slot being set to 0, and these close the gaps.
class Hands {
 public:
  explicit Hands(State& state) : s_(state) {}

  /// Closes the gaps of a computer hand in slots 1..`n_mano`, keeping the order, and counts it
  /// anew. Slots above keep what they held; nobody reads them.
  void riduco_carte(int seat);
  /// Sorts all 14 slots by rank, highest first, empty slots last; equal ranks keep their order.
  /// Selected marks must be gone. Leaves `n_mano` alone.
  void raggruppo_carte(int seat);
  /// Makes the presence string agree with slots 1..`n_mano`.
  void rebuild_presenze(int seat);
  bool presenze_agree(int seat) const;
  /// What a computer hand needs after it has changed: both of the above.
  void tidy(int seat);

  /// The first slot that holds a card of either pack; the hand must hold one.
  int first_slot_with(int seat, int first_pack_code) const;

 private:
  PresenceString presenze_of(int seat) const;

  State& s_;
};

}  // namespace tombrello
