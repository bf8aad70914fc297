#pragma once

#include "cards/outside.h"
#include "cards/state.h"
#include "melds/meld_range.h"

namespace tombrello {

/// Counts a finished hand and shows the scoreboard.
class Scoring {
 public:
  Scoring(State& state, Outside outside) : s_(state), out_(outside) {}

  /// One seat's `n_mano` is 0. Adds to row `row_of(numero_mano)` of `punti_mano` and to
  /// `punti_totali`.
  void risultato();

  /// The row of a hand's scores: its number, or the last row from the tenth hand on.
  static int row_of(int hand) { return hand < kLastRow ? hand : kLastRow; }

 private:
  void fill_punti_carta();
  void make_room_for_hand();
  int count_team(int team, int seat_out) const;
  int points_of_meld(int seat, Meld meld) const;

  State& s_;
  Outside out_;
};

}  // namespace tombrello
