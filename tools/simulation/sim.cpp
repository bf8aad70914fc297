// tombrello-sim HANDS SEED: plays hands headless and prints what came of them.

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "tools/simulation/simulation.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: tombrello-sim HANDS SEED\n", stderr);
    return 2;
  }
  const long hands = std::strtol(argv[1], nullptr, 10);
  tombrello::Simulation simulation(tombrello::ScriptKind::melder,
                                   std::strtoull(argv[2], nullptr, 10));
  constexpr int kMostTurns = 2000;
  long turns = 0;
  long reshuffles = 0;
  long unfinished = 0;
  long score[3] = {};
  const auto start = std::chrono::steady_clock::now();
  for (long hand = 0; hand < hands; ++hand) {
    const auto result = simulation.play_hand(kMostTurns, true);
    if (!result.fault.empty()) {
      std::printf("hand %ld, turn %d: %s\n", hand + 1, result.turns, result.fault.c_str());
      return 1;
    }
    turns += result.turns;
    reshuffles += result.reshuffles;
    if (!result.finished) ++unfinished;
    const auto& s = simulation.state();
    const auto& row =
        s.punti_mano[static_cast<std::size_t>(tombrello::Scoring::row_of(s.numero_mano))];
    for (std::size_t team = 1; team <= 2; ++team) score[team] += row[team];
  }
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  std::printf("hands       %ld (%ld unfinished after %d turns)\n", hands, unfinished, kMostTurns);
  std::printf("turns       %ld\n", turns);
  std::printf("reshuffles  %ld\n", reshuffles);
  std::printf("scores      %ld and %ld\n", score[1], score[2]);
  std::printf("signature   %016llx\n", static_cast<unsigned long long>(simulation.signature()));
  std::printf("hands/s     %.0f\n", static_cast<double>(hands) / took.count());
  return 0;
}
