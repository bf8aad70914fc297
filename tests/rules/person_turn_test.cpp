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
      d.post(kDiscard, d.x_of_slot(slot) + part * d.m.passo_carta() + (slot == 14 ? 40.F : 0.F));
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
    EXPECT_EQ(only(d.log, {"ridisegno"}), Log{"ridisegno_carte"});
  });
  d.discard(2);
  ASSERT_TRUE(play(d));
  EXPECT_EQ(d.pile_text(), "Kd");
}

// What the two sides take, and what the person is left with. A refusal by the judge sorts the
// hand, one on the count doesn't.
TEST(PersonsTurn, LayingCardsOnASide) {
  const struct {
    const char* rule;
    const char* hand;
    std::vector<int> slots;
    const char* list;
    const char* after;
    const char* left;
  } kCases[] = {
      {"three make a meld", "5h 3h Kd 4h", {4, 2, 1}, "", "3h 4h 5h", "Kd Kc"},
      {"two are always refused", "6h 2h Kd", {1, 2}, "3h 4h 5h", "3h 4h 5h", "6h 2h Kd Kc"},
      {"one first is refused", "3h Kd", {1}, "", "", "3h Kd Kc"},
      {"one adds", "2s 6h 9d", {2}, "3h 4h 5h", "3h 4h 5h 6h", "Kc 9d 2s"},
      {"one that doesn't fit", "2s 7h 9d", {2}, "3h 4h 5h", "3h 4h 5h", "Kc 9d 7h 2s"},
      {"three that are no meld", "2s 7h 9d", {1, 2, 3}, "3h 4h 5h", "3h 4h 5h", "Kc 9d 7h 2s"},
      {"none", "2s 7h 9d", {}, "3h 4h 5h", "3h 4h 5h", "2s 7h 9d Kc"},
      {"three join a scala", "6h 7h 8h 2s", {1, 2, 3}, "3h 4h 5h", "3h 4h 5h 6h 7h 8h", "Kc 2s"},
      {"no room for 31",
       "8s 9s 7s 2d",
       {1, 2, 3},
       "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh | 3d 4d 5d 6d 7d 8d 9d 10d Jd Qd Kd | Ks",
       "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh | 3d 4d 5d 6d 7d 8d 9d 10d Jd Qd Kd | Ks",
       "Kc 9s 8s 7s 2d"},
      {"30 fit",
       "8s 9s 7s 2d",
       {1, 2, 3},
       "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh | 3d 4d 5d 6d 7d 8d 9d 10d Jd Qd Kd",
       "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh | 3d 4d 5d 6d 7d 8d 9d 10d Jd Qd Kd | 7s 8s 9s",
       "Kc 2d"},
  };
  for (const auto& c : kCases) {
    for (const Azione side : {kLayOwnSide, kLayPartnerSide}) {
      SCOPED_TRACE(c.rule);
      Deal d;
      const int seat = side == kLayOwnSide ? 1 : 3;
      d.hand(1, c.hand);
      d.table(seat, c.list);
      d.post(kDrawPile);
      d.select(c.slots);
      d.then([&] { d.log.clear(); });
      d.post(side, d.m.striscia_x() + 1);
      EXPECT_FALSE(play(d));
      EXPECT_EQ(d.table_text(seat), c.after);
      EXPECT_EQ(d.table_text(4 - seat), "");
      EXPECT_EQ(d.hand_text(1), c.left);
      Log shown;
      if (!c.slots.empty()) shown.emplace_back("ridisegno_carte");
      if (std::string(c.after) != c.list) {
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

// The pile is empty from the draw of its only card to the discard.
TEST(PersonsTurn, ThePilesOnlyCardMayBeTaken) {
  Deal d;
  d.hand(1, "2h 3d");
  d.post(kDrawPile);
  d.then([&] {
    EXPECT_EQ(only(d.log, {"pile"}), Log{"pile_empty"});
    EXPECT_EQ(d.s.n_pozzo, 0);
  });
  d.discard(1);
  EXPECT_TRUE(play(d));
}

}  // namespace
}  // namespace tombrello::test
