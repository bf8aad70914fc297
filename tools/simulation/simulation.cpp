#include "tools/simulation/simulation.h"

#include "match/dead_hand.h"
#include "match/state_check.h"

namespace tombrello {

Simulation::Simulation(ScriptKind kind, std::uint64_t seed)
    : clock_(seed),
      script_(make_script(kind, seed)),
      wait_(state_, geometry_, *script_),
      rules_(state_, geometry_, clock_, {table_, wait_, sound_, shell_, events_}) {}

void Simulation::ScriptedWait::serve_events() {
  if (s_.azione == kDealerDraw) {
    s_.carta_scelta = static_cast<std::uint8_t>(s_.mazzo[s_.indice_estrazione]);
  } else {
    script_.act(s_, g_);
  }
}

void Simulation::begin() {
  if (in_match_) {
    rules_.match.next_hand();
  } else {
    rules_.match.prepare_match();
    in_match_ = true;
  }
  rules_.match.start_hand();
}

HandResult Simulation::play_hand(int most_turns, bool checked) {
  begin();
  HandResult result;
  while (!result.finished && result.turns < most_turns) {
    if (result.turns > 0) rules_.match.pass_turn();
    const int stock_before = state_.tallone;
    result.finished = rules_.match.play_turn();
    ++result.turns;
    if (state_.di_turno != 1) ++result.computer_turns;
    if (state_.tallone < stock_before) ++result.reshuffles;
    if (checked) result.fault = check_state(state_, {.hand_over = result.finished});
    if (!result.fault.empty()) return result;
  }
  result.dead = !result.finished && nobody_can_go_out(state_);
  if (result.finished) rules_.match.end_hand();
  sign_hand(result);
  in_match_ = !rules_.match.is_over();
  return result;
}

void Simulation::sign_hand(const HandResult& result) {
  sign(static_cast<std::uint64_t>(result.turns));
  for (int seat = 1; seat <= kSeats; ++seat) {
    for (int k = 1; k <= state_.n_mano[seat]; ++k) {
      sign(static_cast<std::uint64_t>(state_.mano[seat][k]));
    }
    for (int k = 1; k <= state_.n_calate[seat]; ++k) {
      sign(static_cast<std::uint64_t>(state_.calate[seat][k]));
    }
  }
  for (int k = 0; k < state_.n_pozzo; ++k) sign(static_cast<std::uint64_t>(state_.pozzo[k]));
  for (int team = 1; team <= 2; ++team) {
    sign(static_cast<std::uint64_t>(std::int64_t{state_.punti_totali[team]}));
  }
}

}  // namespace tombrello
