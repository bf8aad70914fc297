// Plays hands headless on all cores, the state checked after every turn, and prints what came of
// them. The hands are shared out over engines, each with chances of its own, so that the figures
// and the signature don't depend on the number of threads.

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "tools/simulation/tally.h"

namespace tombrello {
namespace {

constexpr int kMostTurns = 2000;
constexpr std::size_t kViolationsShown = 10;

struct Wanted {
  long hands = 0;
  std::uint64_t seed = 0;
  long threads = 0;
  long per_engine = 1000;
};

struct Played {
  Tally tally;
  std::uint64_t signature = 0;
};

// Engines read their clocks once a shuffle; their readings are never to meet.
std::uint64_t seed_of(const Wanted& wanted, std::size_t engine) {
  return wanted.seed + (std::uint64_t{engine} << 40U);
}

Played play(const Wanted& wanted, std::size_t engine) {
  const long first = static_cast<long>(engine) * wanted.per_engine;
  const long end = std::min(first + wanted.per_engine, wanted.hands);
  Simulation simulation(ScriptKind::melder, seed_of(wanted, engine));
  Played played;
  for (long hand = first; hand < end; ++hand) {
    HandResult result = simulation.play_hand(kMostTurns, true);
    if (!result.fault.empty()) result.fault += " (hand " + std::to_string(hand + 1) + ")";
    played.tally.add(result, simulation.state());
  }
  played.signature = simulation.signature();
  return played;
}

Played play_all(const Wanted& wanted) {
  std::vector<Played> played(
      static_cast<std::size_t>((wanted.hands + wanted.per_engine - 1) / wanted.per_engine));
  std::atomic<std::size_t> next = 0;
  const auto work = [&] {
    for (std::size_t engine; (engine = next++) < played.size();) {
      played[engine] = play(wanted, engine);
    }
  };
  std::vector<std::jthread> threads;
  for (long n = 1; n < wanted.threads; ++n) threads.emplace_back(work);
  work();
  threads.clear();
  Played all = played.front();
  for (std::size_t engine = 1; engine < played.size(); ++engine) {
    all.tally.add(played[engine].tally);
    all.signature = (all.signature ^ played[engine].signature) * 0x100000001b3U;
  }
  return all;
}

void print(const Played& played, double seconds) {
  const Tally& tally = played.tally;
  std::printf("hands       %ld\n", tally.hands());
  std::printf("unfinished  %ld after %d turns, %ld of them dead: nobody could go out any more\n",
              tally.unfinished, kMostTurns, tally.dead);
  std::printf(
      "turns       %ld; a hand has %d at least, %d, %d and %d at 5, 50 and 95 %%, %d at most\n",
      tally.turns(), tally.turns_at(0), tally.turns_at(5), tally.turns_at(50), tally.turns_at(95),
      tally.turns_at(100));
  std::printf("reshuffles  %ld\n", tally.reshuffles);
  std::printf("scores      %ld and %ld\n", tally.score[1], tally.score[2]);
  std::printf("violations  %zu\n", tally.violations.size());
  for (std::size_t n = 0; n < std::min(kViolationsShown, tally.violations.size()); ++n) {
    std::printf("            %s\n", tally.violations[n].c_str());
  }
  std::printf("signature   %016llx\n", static_cast<unsigned long long>(played.signature));
  std::printf("hands/s     %.0f\n", static_cast<double>(tally.hands()) / seconds);
}

// Answers false for what can't be played.
bool read(int argc, char** argv, Wanted& wanted) {
  if (argc < 3 || argc % 2 == 0) return false;
  wanted.hands = std::strtol(argv[1], nullptr, 10);
  wanted.seed = std::strtoull(argv[2], nullptr, 10);
  wanted.threads = std::max(1L, static_cast<long>(std::thread::hardware_concurrency()));
  for (int n = 3; n < argc; n += 2) {
    long* value = nullptr;
    if (std::strcmp(argv[n], "--threads") == 0) value = &wanted.threads;
    if (std::strcmp(argv[n], "--per-engine") == 0) value = &wanted.per_engine;
    if (value == nullptr) return false;
    *value = std::strtol(argv[n + 1], nullptr, 10);
  }
  return wanted.hands > 0 && wanted.threads > 0 && wanted.per_engine > 0;
}

}  // namespace
}  // namespace tombrello

int main(int argc, char** argv) {
  tombrello::Wanted wanted;
  if (!tombrello::read(argc, argv, wanted)) {
    std::fputs("usage: tombrello-sim HANDS SEED [--threads N] [--per-engine HANDS]\n", stderr);
    return 2;
  }
  const auto start = std::chrono::steady_clock::now();
  const auto played = tombrello::play_all(wanted);
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  tombrello::print(played, took.count());
  return played.tally.violations.empty() ? 0 : 1;
}
