#include "match/scoring.h"

#include <cassert>

namespace tombrello {
namespace {

int factor_of_meld(bool in_suit, int cards) {
  if (!in_suit) return cards == kPokerCards ? 2 : 1;
  if (cards >= kTombrelloneCards) return 5;  // what was added to one doesn't count more
  return cards >= kTombrelloCards ? 2 : 1;
}

}  // namespace

void Scoring::risultato() {
  out_.table.panel_line();
  out_.wait.ritardo(0.1F);
  out_.table.panel_opens();
  fill_punti_carta();
  int seat_out = 1;
  while (seat_out < kSeats && s_.n_mano[seat_out] != 0) ++seat_out;
  assert(s_.n_mano[seat_out] == 0);
  make_room_for_hand();
  auto& row = s_.punti_mano[row_of(s_.numero_mano)];
  for (int team = 1; team <= 2; ++team) {
    row[team] = static_cast<std::int16_t>(row[team] + count_team(team, seat_out));
    s_.punti_totali[team] = static_cast<std::int16_t>(s_.punti_totali[team] + row[team]);
  }
  out_.table.scoreboard();
}

void Scoring::fill_punti_carta() {
  s_.punti_carta = {0, 15, 5, 5, 5, 5, 10, 10, 10, 10, 10, 10, 10, 10};
}

// From the eleventh hand on the oldest row gives way.
void Scoring::make_room_for_hand() {
  if (s_.numero_mano <= kLastRow) return;
  for (int row = 1; row < kLastRow; ++row) s_.punti_mano[row] = s_.punti_mano[row + 1];
  s_.punti_mano[kLastRow] = {};
}

int Scoring::count_team(int team, int seat_out) const {
  int score = 0;
  for (const int seat : {team, team + 2}) {
    int cards = 0;  // of the last meld counted
    for (const Meld meld : melds_of(s_, seat)) {
      score += points_of_meld(seat, meld);
      cards = meld.cards();
    }
    if (cards == kWholeSuitCards && seat == partner_of(seat_out)) {
      score *= 2;
      out_.events.counted_double(team);
    }
    for (int k = 1; k <= s_.n_mano[seat]; ++k) score -= s_.punti_carta[ValCarta(s_.mano[seat][k])];
  }
  return score;
}

int Scoring::points_of_meld(int seat, Meld meld) const {
  const auto& list = s_.calate[seat];
  int points = 0;
  for (int k = meld.first; k <= meld.last; ++k) points += s_.punti_carta[ValCarta(list[k])];
  return points * factor_of_meld(is_scala(list, meld), meld.cards());
}

}  // namespace tombrello
