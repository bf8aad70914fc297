#include "tools/simulation/tally.h"

#include <algorithm>
#include <numeric>

namespace tombrello {

void Tally::add(const HandResult& result, const State& state) {
  turns_.push_back(result.turns);
  reshuffles += result.reshuffles;
  dead += result.dead;
  if (!result.fault.empty()) {
    violations.push_back("turn " + std::to_string(result.turns) + ": " + result.fault);
    return;
  }
  if (!result.finished) {  // its row isn't written: what stands there may be an older hand's
    ++unfinished;
    return;
  }
  const auto& row = state.punti_mano[static_cast<std::size_t>(Scoring::row_of(state.numero_mano))];
  for (std::size_t team = 1; team <= 2; ++team) score[team] += row[team];
}

void Tally::add(const Tally& other) {
  turns_.insert(turns_.end(), other.turns_.begin(), other.turns_.end());
  reshuffles += other.reshuffles;
  unfinished += other.unfinished;
  dead += other.dead;
  for (std::size_t team = 1; team <= 2; ++team) score[team] += other.score[team];
  violations.insert(violations.end(), other.violations.begin(), other.violations.end());
}

long Tally::turns() const {
  return std::accumulate(turns_.begin(), turns_.end(), 0L);
}

int Tally::turns_at(int percent) const {
  auto sorted = turns_;
  std::sort(sorted.begin(), sorted.end());
  return sorted[(sorted.size() - 1) * static_cast<std::size_t>(percent) / 100];
}

}  // namespace tombrello
