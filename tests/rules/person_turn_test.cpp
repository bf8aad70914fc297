#include <gtest/gtest.h>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

/// Plays what was posted; answers whether the turn came to its end.
bool play(Deal& d) {
  try {
    d.rules.person.Gioco1();
  } catch (const NothingMoreToPost&) {
    return false;
  }
  return true;
}

// One draw a turn; before it nothing can be discarded; the drawn card may go again at once.
TEST(PersonsTurn, OneDrawThenADiscard) {
  for (const Azione draw : {kDrawPile, kDrawStock}) {
    Deal d;
    d.hand(1, "2h Kd 5s");
    d.pile("Kc 9c'");
    d.stock("4d 6c'");
    d.discard(1);
    d.post(draw);
    d.post(kDrawPile);
    d.post(kDrawStock);
    d.discard(4);
    ASSERT_TRUE(play(d));
    const std::string drawn = draw == kDrawPile ? "9c'" : "4d";
    EXPECT_EQ(d.hand_text(1), "Kd 5s 2h");
    EXPECT_EQ(d.pile_text(), draw == kDrawPile ? "Kc 9c'" : "Kc 9c' 4d");
    EXPECT_EQ(only(d.log, {"suona", "drawn", "pile", "stock", "ridisegno", "ritardo"}),
              (Log{"suona", "drawn " + drawn, draw == kDrawPile ? "pile Kc" : "stock 1",
                   "ridisegno_carte", "pile " + drawn, "ridisegno_carte", "suona", "ritardo 0.1"}));
  }
}

// Every slot owns a strip of the fan, the last one all that lies to its right.
TEST(PersonsTurn, AClickDiscardsTheCardUnderIt) {
  for (int slot = 1; slot <= 14; ++slot) {
    for (const float part : {-0.49F, 0.49F}) {
      Deal d;
      const auto hand = cards("Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh");
      d.hand(1, hand);
      d.stock("Ad 2c");
      d.post(kDrawStock);
      d.post(kDiscard, d.m.x_of_slot(slot) + part * d.m.passo_carta() + (slot == 14 ? 40.F : 0.F));
      ASSERT_TRUE(play(d));
      const int thrown = slot == 14 ? card("Ad") : hand[static_cast<std::size_t>(slot - 1)];
      EXPECT_EQ(d.pile_text(), "Kc " + name_of(thrown)) << slot << ' ' << part;
    }
  }
}

// A click on the hand while cards are selected only lowers them; each step is shown.
TEST(PersonsTurn, SelectedCardsAreLoweredBeforeAnyDiscard) {
  Deal d;
  d.hand(1, "2h Kd 5s");
  d.post(kDrawPile);
  for (const auto& [slot, selected] : {std::pair{1, 1}, {3, 2}, {2, 3}, {2, 2}}) {
    d.then([&] { d.log.clear(); });
    d.select({slot});
    d.then([&d, count = selected] {
      EXPECT_EQ(d.s.n_selezionate, count);
      EXPECT_EQ(only(d.log, {"ridisegno"}), Log{"ridisegno_carte"});
    });
  }
  d.then([&] {
    EXPECT_EQ(d.s.mano[1][1], card("2h") + 1000);
    d.log.clear();
  });
  d.discard(2);
  d.then([&] {
    EXPECT_EQ(d.hand_text(1), "2h Kd 5s Kc");
    EXPECT_EQ(d.out.told, "lowered: ");
    EXPECT_EQ(only(d.log, {"ridisegno"}), Log{"ridisegno_carte"});
  });
  d.discard(2);
  ASSERT_TRUE(play(d));
  EXPECT_EQ(d.pile_text(), "Kd");
}

// What the two sides take, and what the person is left with. A refusal by the judge sorts the
// hand, one on the count doesn't.
TEST(PersonsTurn, LayingCardsOnASide) {
  const std::string kTwentySix =
      "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh | 3d 4d 5d 6d 7d 8d 9d 10d Jd Qd Kd";
  const struct {
    const char* hand;
    std::vector<int> slots;
    std::string list;
    std::string after;
    const char* left;
    std::string told;
    float x = 1;  ///< from where the melds begin
  } kCases[] = {
      {"5h 3h Kd 4h", {4, 2, 1}, "", "3h 4h 5h", "Kd Kc", "1 lays at S: 5h 3h 4h"},
      {"6h 2h Kd", {1, 2}, "3h 4h 5h", "3h 4h 5h", "6h 2h Kd Kc", "two: 6h 2h"},
      {"3h Kd", {1}, "", "", "3h Kd Kc", "no meld yet: 3h"},
      {"2s 6h 9d", {2}, "3h 4h 5h", "3h 4h 5h 6h", "Kc 9d 2s", "1 adds at S: 6h"},
      {"2s 7h 9d", {2}, "3h 4h 5h", "3h 4h 5h", "Kc 9d 7h 2s", "fits not: 7h by 3h 4h 5h"},
      {"2s 6h 9d", {2}, "3h 4h 5h", "3h 4h 5h", "Kc 9d 6h 2s", "beside: 6h", 300},
      {"2s 7h 9d", {1, 2, 3}, "3h 4h 5h", "3h 4h 5h", "Kc 9d 7h 2s", "no meld: 2s 7h 9d"},
      {"2s 7h 9d", {}, "3h 4h 5h", "3h 4h 5h", "2s 7h 9d Kc", ""},
      {"6h 7h 8h 2s", {1, 2, 3}, "3h 4h 5h", "3h 4h 5h 6h 7h 8h", "Kc 2s", "1 lays at S: 6h 7h 8h"},
      {"8s 9s 7s 2d",
       {1, 2, 3},
       kTwentySix + " | Ks",
       kTwentySix + " | Ks",
       "Kc 9s 8s 7s 2d",
       "full: 8s 9s 7s"},
      {"8s 9s 7s 2d",
       {1, 2, 3},
       kTwentySix,
       kTwentySix + " | 7s 8s 9s",
       "Kc 2d",
       "1 lays at S: 8s 9s 7s"},
  };
  for (const auto& c : kCases) {
    for (const Azione side : {kLayOwnSide, kLayPartnerSide}) {
      SCOPED_TRACE(c.told);
      Deal d;
      const int seat = side == kLayOwnSide ? 1 : 3;
      d.hand(1, c.hand);
      d.table(seat, c.list);
      d.post(kDrawPile);
      d.select(c.slots);
      d.then([&] { d.log.clear(); });
      d.post(side, d.m.striscia_x() + c.x);
      EXPECT_FALSE(play(d));
      EXPECT_EQ(d.table_text(seat), c.after);
      EXPECT_EQ(d.table_text(4 - seat), "");
      EXPECT_EQ(d.hand_text(1), c.left);
      std::string told = c.told;
      if (const auto place = told.find('S'); place != told.npos)
        told[place] = seat == 1 ? '1' : '3';
      EXPECT_EQ(d.out.told, told);
      Log shown;
      if (!c.slots.empty()) shown.emplace_back("ridisegno_carte");
      if (c.after != c.list) {
        shown.push_back("calo_carte " + number(seat));
        shown.emplace_back(seat == 1 ? "suona" : "beep");
        if (seat == 3) shown.emplace_back("ritardo 0.2");
      }
      shown.emplace_back("default_pointer");
      EXPECT_EQ(only(d.log, {"ridisegno", "calo", "suona", "beep", "ritardo", "def"}), shown);
    }
  }
}

// Laying down the whole rest of the hand goes out without a discard; the last card by a discard.
TEST(PersonsTurn, GoingOut) {
  for (const Azione side : {kLayOwnSide, kLayPartnerSide}) {
    Deal d;
    d.hand(1, "4c 5c");
    d.pile("Kc 6c");
    d.post(kDrawPile);
    d.select({1, 2, 3});
    d.post(side);
    ASSERT_TRUE(play(d));
    EXPECT_EQ(d.s.n_mano[1], 0);
    EXPECT_EQ(d.pile_text(), "Kc");
  }
  Deal d;
  d.hand(1, "6c");
  d.table(1, "3c 4c 5c");
  d.post(kDrawPile);
  d.select({1});
  d.post(kLayOwnSide, 295);
  d.then([&] { EXPECT_EQ(d.s.n_mano[1], 1); });
  d.discard(1);
  ASSERT_TRUE(play(d));
  EXPECT_EQ(d.s.n_mano[1], 0);
  EXPECT_EQ(d.pile_text(), "Kc");
}

// Clicks during a pause, a computer's turn or the draw for dealer are lost.
TEST(PersonsTurn, WhatIsPostedOutsideTheWaitIsLost) {
  Deal d;
  d.s.azione = kDrawStock;
  d.hand(1, "2h 4c 5c 6c");
  d.table(3, "7d 8d 9d");
  d.out.in_pause = [&] { d.s.azione = kDiscard; };
  d.then([&] { EXPECT_EQ(d.s.azione, kNoAction); });
  d.post(kDealerDraw);
  d.post(kNamesConfirmed);
  d.then([&] { EXPECT_EQ(d.s.n_mano[1], 4); });
  d.post(kDrawPile);
  d.select({2, 3, 4});
  d.post(kLayPartnerSide);
  EXPECT_FALSE(play(d));
  EXPECT_EQ(d.hand_text(1), "Kc 2h");
}

}  // namespace
}  // namespace tombrello::test
