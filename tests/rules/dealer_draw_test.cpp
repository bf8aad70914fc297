#include <gtest/gtest.h>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

/// A deck that begins with some cards, ready for a draw.
struct Draw : Deal {
  explicit Draw(const std::string& first) {
    const auto codes = cards(first);
    std::copy(codes.begin(), codes.end(), s.mazzo.begin() + 1);
  }
  void click(int times = 1) {
    for (int n = 0; n < times; ++n) {
      then([this] {
        slots.push_back(s.indice_estrazione);
        seats.push_back(s.di_turno);
        s.carta_scelta = static_cast<std::uint8_t>(s.mazzo[s.indice_estrazione]);
      });
    }
  }
  std::vector<int> slots;
  std::vector<int> seats;
};

// All ways in which four ranks can fall: the highest deals unless two share it.
TEST(DealerDraw, TheHighestRankDealsAndATieOfTheTopTwoDecidesNothing) {
  Deal d;
  for (int n = 0; n < 13 * 13 * 13 * 13; ++n) {
    const int ranks[] = {n % 13 + 1, n / 13 % 13 + 1, n / 169 % 13 + 1, n / 2197 + 1};
    int best = 0;
    int dealer = 0;
    for (int seat = 1; seat <= 4; ++seat) {
      const int rank = ranks[seat - 1];
      d.s.valori_estratti[seat] = static_cast<std::uint8_t>(rank);
      if (rank >= best) dealer = rank == best ? 0 : seat;
      best = std::max(best, rank);
    }
    d.rules.draw.ord_massimo();
    ASSERT_EQ(d.s.cartaro, dealer)
        << ranks[0] << ' ' << ranks[1] << ' ' << ranks[2] << ' ' << ranks[3];
  }
}

// The first four cards go to seats 2, 3, 4, 1; the seat after the dealer opens.
TEST(DealerDraw, EachClickTurnsUpTheNextSeatsCard) {
  Draw d("9h Kd' 3c 5s");
  d.click(4);
  d.rules.draw.Scelta_Cartaro();
  EXPECT_EQ(d.s.cartaro, 3);
  EXPECT_EQ(d.s.di_turno, 4);
  EXPECT_EQ(d.s.azione, kNoAction);
  EXPECT_EQ(d.log, (Log{"default_pointer",   "dealer_screen",     "continue 0", "names 1",
                        "Apri_suono carta",  "dealer_deck 0",     "names 0",    "suona",
                        "dealer_card 2 9h",  "dealer_deck 1",     "names 0",    "suona",
                        "dealer_card 3 Kd'", "dealer_deck 0",     "names 0",    "suona",
                        "dealer_card 4 3c",  "dealer_deck 0",     "names 0",    "suona",
                        "dealer_card 1 5s",  "Posiziona_Players", "ritardo 0.1"}));
  EXPECT_EQ(d.s.x_estrazione, (BySeat<float>{0, 370, 20, 370, 720}));
  EXPECT_EQ(d.s.y_estrazione, (BySeat<float>{0, 485.75F, 252.875F, 20, 252.875F}));
}

// A tie repeats the draw for all; seat 2's next card is the one that seat 1 drew last.
TEST(DealerDraw, ATieTakesThreeNewCards) {
  Draw d("Kh Kd 2c 3s 3h 3d 3c As 2h 5d");
  d.click(12);
  d.rules.draw.Scelta_Cartaro();
  EXPECT_EQ(d.slots, (std::vector<int>{1, 2, 3, 4, 4, 5, 6, 7, 7, 8, 9, 10}));
  EXPECT_EQ(d.seats, (std::vector<int>{2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4, 1}));
  EXPECT_EQ(
      only(d.log, {"Apri", "message"}),
      (Log{"Apri_suono carta", "Apri_suono Notify", "Apri_suono carta", "message Ripeti, prego",
           "Apri_suono Notify", "Apri_suono carta", "message Ripeti, prego"}));
  EXPECT_EQ(d.s.cartaro, 1);
  EXPECT_EQ(d.s.di_turno, 2);
}

// Names confirmed before the first card start screen and count over.
TEST(DealerDraw, NewNamesStartTheScreenOver) {
  Draw d("9h Kd 3c 5s");
  d.then([] {});  // a pass of events without an answer
  d.post(kNamesConfirmed);
  d.click(4);
  d.rules.draw.Scelta_Cartaro();
  EXPECT_EQ(only(d.log, {"dealer_screen"}).size(), 2U);
  EXPECT_EQ(d.slots, (std::vector<int>{1, 2, 3, 4}));
  EXPECT_EQ(d.s.cartaro, 3);
}

// The deck is good for 34 passes; the next one begins on a fresh deck.
TEST(DealerDraw, The35thPassBeginsOnAFreshDeck) {
  Draw d("");
  d.s.mazzo.fill(static_cast<std::int16_t>(card("Ah")));
  d.click(34 * 4);
  d.then([&] {
    EXPECT_EQ(d.s.indice_estrazione, 1);
    EXPECT_NE(d.s.mazzo[103], d.s.mazzo[104]) << "shuffled again";
    EXPECT_EQ(d.s.di_turno, 2);
    d.s.mazzo[1] = static_cast<std::int16_t>(card("Kh"));
    d.s.mazzo[2] = d.s.mazzo[3] = d.s.mazzo[4] = static_cast<std::int16_t>(card("Ah"));
    d.s.carta_scelta = static_cast<std::uint8_t>(d.s.mazzo[1]);
  });
  d.click(3);
  d.rules.draw.Scelta_Cartaro();
  EXPECT_EQ(*std::max_element(d.slots.begin(), d.slots.end()), 103);
  EXPECT_EQ(d.s.cartaro, 2);
}

}  // namespace
}  // namespace tombrello::test
