// Whole hands and the decisions of the computer seats, headless and on one thread.

#include <benchmark/benchmark.h>

#include "tools/simulation/simulation.h"

namespace tombrello {
namespace {

constexpr int kMostTurns = 2000;

// Shuffle, deal, turns and count; seat 1 only draws and discards, so that nearly all of the time
// is the computer seats'. `turn` is the time of one computer turn, with all the rest of the hand
// charged to the computer turns too.
void whole_hands(benchmark::State& run) {
  Simulation simulation(ScriptKind::simple, 1);
  std::int64_t turns = 0;
  for (auto _ : run) turns += simulation.play_hand(kMostTurns, false).computer_turns;
  using Counter = benchmark::Counter;
  const auto count = static_cast<double>(turns);
  run.counters["computer_turns/s"] = Counter(count, Counter::kIsRate);
  run.counters["turn"] = Counter(count, Counter::kIsRate | Counter::kInvert);
}
BENCHMARK(whole_hands);

// States in the middle of many hands, for the decisions by themselves.
class Positions {
 public:
  Positions() {
    for (std::uint64_t seed = 1; states_.size() < 256; ++seed) {
      Simulation simulation(ScriptKind::melder, seed);
      simulation.play_hand(10 + static_cast<int>(seed % 20), false);
      State s = simulation.state();
      s.di_turno = static_cast<std::uint8_t>(2 + seed % 3);
      if (s.n_mano[s.di_turno] < 4 || s.n_mano[1] == 0) continue;
      s.compagno = static_cast<std::uint8_t>(partner_of(s.di_turno));
      s.presenze_salvate = s.presenze[s.di_turno];
      s.ha_pescato = true;
      states_.push_back(s);
    }
  }
  const State& next() { return states_[at_++ % states_.size()]; }

 private:
  std::vector<State> states_;
  std::size_t at_ = 0;
};

class NoWait : public Wait {
 public:
  void ritardo(float) override {}
  void serve_events() override {}
};

// Each run of a decision starts from a fresh copy of a position; `copy_of_state` tells what the
// copy costs, to be taken off.
template <class Decision>
void decide(benchmark::State& run, Decision decision) {
  Positions positions;
  State state;
  const Geometry geometry;
  CountingClock clock(1);
  QuietTable table;
  QuietSound sound;
  QuietShell shell;
  QuietEvents events;
  NoWait wait;
  Rules rules(state, geometry, clock, {table, wait, sound, shell, events});
  for (auto _ : run) {
    state = positions.next();
    decision(rules, state);
    benchmark::DoNotOptimize(state);
  }
}

void copy_of_state(benchmark::State& run) {
  decide(run, [](Rules&, State&) {});
}
BENCHMARK(copy_of_state);

void decido_calata(benchmark::State& run) {
  decide(run, [](Rules& rules, State& s) { rules.meld_decision.decido_calata(s.di_turno); });
}
BENCHMARK(decido_calata);

void Provo_Attacco(benchmark::State& run) {
  decide(run, [](Rules& rules, State& s) { rules.lay_off.Provo_Attacco(s.di_turno, s.di_turno); });
}
BENCHMARK(Provo_Attacco);

void scarto_carta(benchmark::State& run) {
  decide(run, [](Rules& rules, State& s) {
    if (s.n_pozzo < kPack) rules.discard.scarto_carta(s.di_turno);
  });
}
BENCHMARK(scarto_carta);

}  // namespace
}  // namespace tombrello
