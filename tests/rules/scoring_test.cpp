#include <gtest/gtest.h>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

constexpr const char* kAceToKing = "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh";

// Seats hold nothing but what a test gives them; seat 2 went out unless it holds cards.
struct Count : Deal {
  Count() {
    s.numero_mano = 1;
    for (int seat = 1; seat <= 4; ++seat) hand(seat, "");
  }
  int team(int which) {
    s.punti_mano = {};
    s.punti_totali = {};
    rules.scoring.risultato();
    return s.punti_totali[which];
  }
};

TEST(Scoring, EachKindOfMeldHasItsPoints) {
  const std::string a_k = kAceToKing;
  const struct {
    std::string meld;
    int points;
  } kCases[] = {
      {"6h 7h 8h 9h", 40},
      {"Ad 2d 3d", 25},
      {"7h 8h 9h 10h Jh Qh", 60},
      {"7h 8h 9h 10h Jh Qh Kh", 140},
      {"3h 4h 5h 6h 7h 8h 9h", 110},
      {a_k, 230},
      {a_k + " Ah'", 650},
      {a_k + " Ah' 2h'", 675},
      {"Ah Ad Ac As", 120},
      {"Kh Kd Kc Ks", 80},
      {"5h 5d 5c 5s", 40},
      {"Ah Ad Ac", 45},
      {"2h 2d 2c | 6h 7h 8h 9h", 55},
  };
  for (const auto& c : kCases) {
    for (int seat = 1; seat <= 4; ++seat) {
      SCOPED_TRACE(c.meld);
      Count d;
      for (int other = 1; other <= 4; ++other) d.hand(other, other == next_seat(seat) ? "" : "2s");
      d.table(seat, c.meld);
      EXPECT_EQ(d.team(seat % 2 == 1 ? 1 : 2), c.points - 10);
    }
  }
}

// Every seat pays for what it holds, also one that has laid nothing down.
TEST(Scoring, CardsInHandCost) {
  Count d;
  d.hand(1, "Ah Kd 5s'");
  d.hand(3, "2c");
  d.table(3, "6h 7h 8h");
  EXPECT_EQ(d.team(1), 30 - 5 - 30);
  EXPECT_EQ(d.team(2), 0);
  EXPECT_EQ(d.log, (Log{"panel_line", "ritardo 0.1", "panel_opens", "scoreboard", "panel_line",
                        "ritardo 0.1", "panel_opens", "scoreboard"}));
}

// If the last meld of the partner of the seat that went out has exactly thirteen cards, what the
// team has by then is doubled, before the partner's hand is paid for.
TEST(Scoring, ThePartnersThirteenDouble) {
  const struct {
    int out;
    int seat;
    std::string melds;
    const char* other_melds;
    int points;
  } kCases[] = {
      {1, 3, kAceToKing, "6c 7c 8c", (30 + 230) * 2 - 15},
      {3, 1, kAceToKing, "6c 7c 8c", 230 * 2 - 15 + 30},
      {2, 4, kAceToKing, "", 230 * 2 - 15},
      {4, 2, kAceToKing, "", 230 * 2 - 15},
      {2, 1, kAceToKing, "", 230 - 15 - 15},
      {1, 3, std::string(kAceToKing) + " | 6c 7c 8c", "", 230 + 30 - 15},
      {1, 3, std::string("6c 7c 8c | ") + kAceToKing, "", (30 + 230) * 2 - 15},
      {1, 3, std::string(kAceToKing) + " Ah'", "", 650 - 15},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(testing::Message() << c.out << " out, melds of " << c.seat << ' ' << c.melds);
    Count d;
    for (int seat = 1; seat <= 4; ++seat) d.hand(seat, seat == c.out ? "" : "As");
    d.table(c.seat, c.melds);
    d.table(partner_of(c.seat), c.other_melds);
    EXPECT_EQ(d.team(c.seat % 2 == 1 ? 1 : 2), c.points);
  }
}

// Each hand has its row; past the tenth the oldest gives way, and the totals stay true.
TEST(Scoring, RowsGiveWayAndTotalsStayTrue) {
  Count d;
  int total = 0;
  for (int hand = 0; hand <= 40; ++hand) {
    const auto before = d.s.punti_mano;
    d.s.numero_mano = static_cast<std::int16_t>(hand);
    d.hand(3, hand % 3 == 0 ? "Ah" : "Kh 2h 3c Ad");
    const int points = hand % 3 == 0 ? -15 : -35;
    total += points;
    d.rules.scoring.risultato();
    ASSERT_EQ(d.s.punti_totali[1], total);
    ASSERT_EQ(d.s.punti_mano[std::min(hand, 10)][1], points);
    ASSERT_EQ(d.s.punti_mano[0][1], -15) << "the row of a replayed hand is never listed";
    for (int row = 1; row < std::min(hand, 10); ++row) {
      ASSERT_EQ(d.s.punti_mano[row], before[hand > 10 ? row + 1 : row]) << "hand " << hand;
    }
  }
}

}  // namespace
}  // namespace tombrello::test
