// tombrello-sim HANDS SEED: plays hands headless and prints what came of them.

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "tools/simulation/simulation.h"

namespace tombrello {
namespace {

constexpr int kMostTurns = 2000;

struct Tally {
  long turns = 0;
  long reshuffles = 0;
  long unfinished = 0;
  std::array<long, 3> score{};  // by team

  void add(const HandResult& result, const State& s) {
    turns += result.turns;
    reshuffles += result.reshuffles;
    if (!result.finished) ++unfinished;
    const auto& row = s.punti_mano[static_cast<std::size_t>(Scoring::row_of(s.numero_mano))];
    for (std::size_t team = 1; team <= 2; ++team) score[team] += row[team];
  }
};

void print(const Tally& tally, long hands, std::uint64_t signature, double seconds) {
  std::printf("hands       %ld (%ld unfinished after %d turns)\n", hands, tally.unfinished,
              kMostTurns);
  std::printf("turns       %ld\n", tally.turns);
  std::printf("reshuffles  %ld\n", tally.reshuffles);
  std::printf("scores      %ld and %ld\n", tally.score[1], tally.score[2]);
  std::printf("signature   %016llx\n", static_cast<unsigned long long>(signature));
  std::printf("hands/s     %.0f\n", static_cast<double>(hands) / seconds);
}

// Answers false if the state was found broken after a turn.
bool simulate(long hands, std::uint64_t seed) {
  Simulation simulation(ScriptKind::melder, seed);
  Tally tally;
  const auto start = std::chrono::steady_clock::now();
  for (long hand = 0; hand < hands; ++hand) {
    const auto result = simulation.play_hand(kMostTurns, true);
    if (!result.fault.empty()) {
      std::printf("hand %ld, turn %d: %s\n", hand + 1, result.turns, result.fault.c_str());
      return false;
    }
    tally.add(result, simulation.state());
  }
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  print(tally, hands, simulation.signature(), took.count());
  return true;
}

}  // namespace
}  // namespace tombrello

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: tombrello-sim HANDS SEED\n", stderr);
    return 2;
  }
  const long hands = std::strtol(argv[1], nullptr, 10);
  return tombrello::simulate(hands, std::strtoull(argv[2], nullptr, 10)) ? 0 : 1;
}
