// Whole hands, hands from a deal that stands, single turns and the decisions of the computer
// seats, headless and on one thread.

#include <benchmark/benchmark.h>

#include <vector>

#include "match/state_check.h"
#include "tools/simulation/simulation.h"

namespace tombrello {
namespace {

constexpr int kMostTurns = 2000;

// `turn` is the time of one computer turn, with all the rest charged to the computer turns too.
void count_turns(benchmark::State& run, std::int64_t turns) {
  using Counter = benchmark::Counter;
  const auto count = static_cast<double>(turns);
  run.counters["computer_turns/s"] = Counter(count, Counter::kIsRate);
  run.counters["turn"] = Counter(count, Counter::kIsRate | Counter::kInvert);
}

// Shuffle, deal, turns and count; seat 1 only draws and discards, so that nearly all of the time
// is the computer seats'.
void play_hands(benchmark::State& run, bool checked) {
  Simulation simulation(ScriptKind::simple, 1);
  std::int64_t turns = 0;
  for (auto _ : run) turns += simulation.play_hand(kMostTurns, checked).computer_turns;
  count_turns(run, turns);
}

void whole_hands(benchmark::State& run) {
  play_hands(run, false);
}
BENCHMARK(whole_hands);

// The same with the state checked after each turn, seat 1's too.
void whole_hands_checked(benchmark::State& run) {
  play_hands(run, true);
}
BENCHMARK(whole_hands_checked);

/// An engine on a state that a benchmark sets before each run. Seat 1 only draws and discards.
class Engine {
 public:
  State state;

 private:
  class SimpleSeat : public Wait {
   public:
    SimpleSeat(State& s, const Geometry& g) : s_(s), g_(g) {}
    void ritardo(float) override {}
    void serve_events() override { script_->act(s_, g_); }

   private:
    State& s_;
    const Geometry& g_;
    std::unique_ptr<Script> script_ = make_script(ScriptKind::simple, 1);
  };

  Geometry geometry_;
  CountingClock clock_{1};
  QuietTable table_;
  QuietSound sound_;
  QuietShell shell_;
  QuietEvents events_;
  SimpleSeat wait_{state, geometry_};

 public:
  Rules rules{state, geometry_, clock_, {table_, wait_, sound_, shell_, events_}};
};

/// States to start from, each run from a fresh copy.
class States {
 public:
  void add(const State& state) { states_.push_back(state); }
  std::size_t count() const { return states_.size(); }
  const State& next() { return states_[at_++ % states_.size()]; }

 private:
  std::vector<State> states_;
  std::size_t at_ = 0;
};

States dealt() {
  States states;
  Engine engine;
  while (states.count() < 256) {
    engine.state.cartaro = static_cast<std::uint8_t>(1 + states.count() % kSeats);
    engine.state.di_turno = static_cast<std::uint8_t>(next_seat(engine.state.cartaro));
    engine.rules.match.start_hand();
    states.add(engine.state);
  }
  return states;
}

// The turns of a hand without its shuffle, deal and count.
void from_a_dealt_copy(benchmark::State& run) {
  States states = dealt();
  Engine engine;
  std::int64_t turns = 0;
  for (auto _ : run) {
    engine.state = states.next();
    for (int turn = 1; turn <= kMostTurns; ++turn) {
      turns += engine.state.di_turno != 1;
      if (engine.rules.match.play_turn()) break;
      engine.rules.match.pass_turn();
    }
  }
  count_turns(run, turns);
}
BENCHMARK(from_a_dealt_copy);

// Positions in the middle of many hands, a computer seat on turn.
States positions() {
  States states;
  for (std::uint64_t seed = 1; states.count() < 256; ++seed) {
    Simulation simulation(ScriptKind::melder, seed);
    simulation.play_hand(10 + static_cast<int>(seed % 20), false);
    State s = simulation.state();
    s.di_turno = static_cast<std::uint8_t>(2 + seed % 3);
    if (s.n_mano[s.di_turno] < 4 || s.n_mano[1] == 0 || s.n_pozzo == kPack) continue;
    s.compagno = static_cast<std::uint8_t>(partner_of(s.di_turno));
    s.presenze_salvate = s.presenze[s.di_turno];
    s.ha_pescato = true;
    states.add(s);
  }
  return states;
}

// Each run starts from a fresh copy of a position; `copy_of_state` tells what the copy costs, to
// be taken off.
template <class What>
void from_a_position(benchmark::State& run, What what) {
  States states = positions();
  Engine engine;
  for (auto _ : run) {
    engine.state = states.next();
    what(engine.rules, engine.state);
    benchmark::DoNotOptimize(engine.state);
  }
}

void copy_of_state(benchmark::State& run) {
  from_a_position(run, [](Rules&, State&) {});
}
BENCHMARK(copy_of_state);

void one_turn(benchmark::State& run) {
  from_a_position(run, [](Rules& rules, State&) { rules.computer.Gioco2(); });
}
BENCHMARK(one_turn);

void decido_calata(benchmark::State& run) {
  from_a_position(run,
                  [](Rules& rules, State& s) { rules.meld_decision.decido_calata(s.di_turno); });
}
BENCHMARK(decido_calata);

void Provo_Attacco(benchmark::State& run) {
  from_a_position(
      run, [](Rules& rules, State& s) { rules.lay_off.Provo_Attacco(s.di_turno, s.di_turno); });
}
BENCHMARK(Provo_Attacco);

void scarto_carta(benchmark::State& run) {
  from_a_position(run, [](Rules& rules, State& s) { rules.discard.scarto_carta(s.di_turno); });
}
BENCHMARK(scarto_carta);

// What checking the state after a turn costs.
void check_of_state(benchmark::State& run) {
  from_a_position(run,
                  [](Rules&, State& s) { benchmark::DoNotOptimize(check_state(s, {}).empty()); });
}
BENCHMARK(check_of_state);

}  // namespace
}  // namespace tombrello
