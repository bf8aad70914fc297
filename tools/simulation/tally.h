#pragma once

#include <array>
#include <vector>

#include "tools/simulation/simulation.h"

namespace tombrello {

/// What came of many hands.
class Tally {
 public:
  void add(const HandResult& result, const State& state);
  void add(const Tally& other);

  long hands() const { return static_cast<long>(turns_.size()); }
  long turns() const;
  /// The turns of the hand that `percent` of all hands don't outlast; there must be a hand.
  int turns_at(int percent) const;

  long reshuffles = 0;
  long unfinished = 0;
  long dead = 0;                ///< of these, those that nobody could end any more
  std::array<long, 3> score{};  ///< by team, of the finished hands
  /// What the check of the state found.
  std::vector<std::string> violations;

 private:
  std::vector<int> turns_;  // of each hand
};

}  // namespace tombrello
