#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "cards/geometry.h"
#include "cards/state.h"
#include "match/rules.h"
#include "tools/simulation/quiet.h"
#include "tools/simulation/script.h"

namespace tombrello {

/// What came of one hand.
struct HandResult {
  int turns = 0;
  int computer_turns = 0;
  int reshuffles = 0;
  bool finished = false;  ///< false when the cap on turns was reached: a hand can go on for ever
  bool dead = false;      ///< not finished, and nobody could go out any more
  std::string fault{};    ///< what the check of the state found; empty if all was well
};

/// Plays hands headless, with a scripted seat 1 that posts codes from inside the wait.
class Simulation {
 public:
  Simulation(ScriptKind kind, std::uint64_t seed);

  /// Deals and plays one hand, after a draw for dealer at the start of each match. With
  /// `checked` the state is checked after every turn.
  HandResult play_hand(int most_turns, bool checked);

  const State& state() const { return state_; }
  int beeps() const { return sound_.beeps; }  ///< that a player would have heard so far
  /// A number that stands for all that has happened so far.
  std::uint64_t signature() const { return signature_; }

 private:
  class ScriptedWait : public Wait {
   public:
    ScriptedWait(State& state, const Geometry& geometry, Script& script)
        : s_(state), g_(geometry), script_(script) {}
    void ritardo(float) override {}
    void serve_events() override;

   private:
    State& s_;
    const Geometry& g_;
    Script& script_;
  };

  void begin();
  void sign(std::uint64_t value) { signature_ = (signature_ ^ value) * 0x100000001b3U; }
  void sign_hand(const HandResult& result);

  State state_;
  Geometry geometry_;
  CountingClock clock_;
  std::unique_ptr<Script> script_;
  QuietTable table_;
  QuietSound sound_;
  QuietShell shell_;
  QuietEvents events_;
  ScriptedWait wait_;
  Rules rules_;
  bool in_match_ = false;
  std::uint64_t signature_ = 0xcbf29ce484222325U;
};

}  // namespace tombrello
