#include <gtest/gtest.h>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

void run(Deal& d) {
  EXPECT_THROW(d.rules.match.Main(), NothingMoreToPost);
}

// The order of a run: the match, the draw, the hand, its turns.
TEST(Match, BeginsWithTheDrawAndDealsAFreshDeck) {
  Deal d;
  d.s.numero_mano = 7;
  d.s.punti_totali = {0, 400, 300};
  d.s.punti_mano[1] = {0, 400, 300};
  d.s.nomi = {"TU", "OVEST", "NORD", "EST"};
  for (const int ace_or_king : {13, 1, 1, 1}) {
    d.then([&d, ace_or_king] { d.s.carta_scelta = static_cast<std::uint8_t>(ace_or_king); });
  }
  std::array<std::int16_t, kCards + 1> drawn_from{};
  d.out.actions.push_front([&] { drawn_from = d.s.mazzo; });
  run(d);
  EXPECT_EQ(d.s.cartaro, 2);
  EXPECT_EQ(d.s.numero_mano, 1);
  EXPECT_EQ(d.s.punti_totali[1], 0);
  EXPECT_EQ(d.s.punti_mano[1][2], 0);
  EXPECT_NE(d.s.mazzo, drawn_from);
  EXPECT_EQ(d.s.squadre[0], "TU-NORD");
  EXPECT_EQ(d.s.squadre[1], "OVEST-EST");
  EXPECT_EQ(only(d.log, {"names", "continue", "replay", "clear", "dealer_screen", "deal_begins",
                         "ritardo 0.01", "Set_Write"}),
            (Log{"names 1", "continue 0", "clear", "dealer_screen", "continue 0", "names 1",
                 "names 0", "names 0", "names 0", "names 0", "replay 0", "ritardo 0.01",
                 "deal_begins", "clear", "Set_Write", "ritardo 0.01"}));
}

// A kept hand is dealt again without a draw, and counted in row 0; the hands after it are
// shuffled, and their dealer moves on. Here the deck lies in order: seat 2 gets the hearts, finds
// the other Ace of hearts on the pile, and goes out on the first turn.
TEST(Match, AReplayedHandIsTheKeptOneAndOnlyOnce) {
  Deal d;
  for (int i = 1; i <= kCards; ++i) d.s.mazzo[i] = static_cast<std::int16_t>(i);
  d.s.cartaro = 1;
  d.s.di_turno = 2;
  d.out.replay = true;
  d.s.continua = true;  // an old press of "Continua" counts for nothing
  d.then([] {});        // the scoreboard stands, nothing happens yet
  d.then([&] {
    EXPECT_EQ(d.s.calate[2][14], 1) << d.table_text(2);
    EXPECT_EQ(d.s.n_calate[2], 15);
    EXPECT_EQ(d.s.numero_mano, 0);
    EXPECT_EQ(d.s.punti_mano[0], (std::array<std::int16_t, 3>{0, -230, 535}));
    EXPECT_EQ(d.s.punti_totali, (std::array<std::int16_t, 3>{0, -230, 535}));
    EXPECT_TRUE(d.out.replay) << "choosing again during the hand changes nothing";
    EXPECT_EQ(only(d.log, {"dealer", "replay", "uncheck", "names", "continue", "scopro", "panel",
                           "scoreboard"}),
              (Log{"names 1", "continue 0", "scopro_carte", "panel_line", "panel_opens",
                   "scoreboard", "continue 1"}));
    EXPECT_EQ(d.log.back(), "default_pointer");
  });
  d.then([&d] { d.s.continua = true; });
  run(d);
  EXPECT_FALSE(d.out.replay);
  EXPECT_EQ(only(d.log, {"uncheck", "replay"}), (Log{"uncheck_replay", "replay 0"}));
  EXPECT_EQ(d.s.numero_mano, 1);
  EXPECT_EQ(d.s.cartaro, 2);
  EXPECT_EQ(d.s.punti_totali[2], 535);
  int in_place = 0;
  for (int slot = 1; slot <= 52; ++slot) in_place += d.s.mazzo[slot] == slot;
  EXPECT_LT(in_place, 10) << "the next hand is shuffled";
}

// A hand begins on a clean table, whatever the last one left, and each turn shows whose it is.
TEST(Match, AHandBeginsClean) {
  Deal d;
  for (int seat = 1; seat <= 4; ++seat) {
    d.hand(seat, "Ah 2d 3c");
    d.table(seat, "3h 4h 5h");
  }
  d.out.replay = true;
  d.rules.match.Gioco_Imposta();
  State clean;
  clean.n_mano = {0, 13, 13, 13, 13};
  EXPECT_EQ(d.s.mano, clean.mano);
  EXPECT_EQ(d.s.n_mano, clean.n_mano);
  EXPECT_EQ(d.s.calate, clean.calate);
  EXPECT_EQ(d.s.n_calate, clean.n_calate);
  EXPECT_EQ(d.s.pozzo, clean.pozzo);
  EXPECT_EQ(d.s.presenze, clean.presenze);

  d.pile("Kc");
  d.hand(2, "Ah 5d 9c");
  d.s.di_turno = 2;
  d.log.clear();
  d.rules.match.play_turn();
  EXPECT_EQ(d.log.front(), "Posiziona_Players");
}

// The dealer moves on seat by seat, whoever went out, and the seat after it opens.
TEST(Match, TheDealerMovesOn) {
  for (int dealer = 1; dealer <= 4; ++dealer) {
    for (int out = 1; out <= 4; ++out) {
      Deal d;
      d.s.cartaro = static_cast<std::uint8_t>(dealer);
      d.s.di_turno = static_cast<std::uint8_t>(out);
      d.rules.match.next_hand();
      EXPECT_EQ(d.log, (Log{"deal_begins", "continue 0", "clear"}));
      EXPECT_EQ(d.s.cartaro, dealer % 4 + 1);
      EXPECT_EQ(d.s.di_turno, (dealer + 1) % 4 + 1);
    }
  }
}

// A match is over as soon as a team stands at 1500, whoever leads.
TEST(Match, EndsAtFifteenHundred) {
  const struct {
    std::int16_t team1;
    std::int16_t team2;
    bool over;
  } kCases[] = {{1499, 1499, false}, {1500, 0, true},    {0, 1500, true},    {-50, 1500, true},
                {1600, 1600, true},  {1500, 1500, true}, {-900, -20, false}, {1515, -1, true}};
  for (const auto& c : kCases) {
    Deal d;
    d.s.punti_totali = {0, c.team1, c.team2};
    d.rules.match.end_hand();
    EXPECT_EQ(d.rules.match.is_over(), c.over) << c.team1 << ' ' << c.team2;
    EXPECT_EQ(d.log.back(), c.over ? "continue 0" : "continue 1");
  }
}

}  // namespace
}  // namespace tombrello::test
