#include <gtest/gtest.h>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

void play(Deal& d, int seat) {
  d.s.di_turno = static_cast<std::uint8_t>(seat);
  d.log.clear();
  d.rules.computer.Gioco2();
}

// A turn's three roads, with every pause and repaint in its place: nothing to lay; a meld, which
// is the draw; an addition that uses the pile's card. While that card is only weighed, whoever
// looks is told so: it is no card of the hand.
TEST(ComputerTurn, IsShownStepByStep) {
  const struct {
    const char* hand;
    const char* pile;
    Log shown;
  } kRoads[] = {
      {"2h 5d 8c Js",
       "Kc",
       {"ritardo 0.2 weighs", "ritardo 0.2 weighs", "ritardo 0.2 weighs", "landed 3 9d'", "stock 1",
        "ridisegno_dorsi 3", "suona"}},
      {"2h 5d 6d 8c",
       "Kc 7d'",
       {"pile Kc", "ridisegno_dorsi 3", "calo_carte 3", "ritardo 0.2", "ritardo 0.2", "suona"}},
      {"2h 5d 8c Js",
       "Kc 7s",
       {"ritardo 0.2 weighs", "ritardo 0.2 weighs", "pile Kc", "ridisegno_dorsi 3", "calo_carte 1",
        "beep", "ritardo 0.2", "suona"}},
  };
  for (const auto& road : kRoads) {
    Deal d;
    d.hand(3, road.hand);
    d.table(1, "4s 5s 6s");
    d.pile(road.pile);
    d.stock("9d' 2c'");
    d.out.in_pause = [&] { d.log.back() += d.s.holds_copy ? " weighs" : ""; };
    play(d, 3);
    Log whole{"hourglass", "ritardo 0.1"};
    whole.insert(whole.end(), road.shown.begin(), road.shown.end());
    for (const char* end : {"pile 2h", "ridisegno_dorsi 3", "ritardo 0.2"}) whole.emplace_back(end);
    EXPECT_EQ(d.log, whole) << road.pile;
  }
}

// The edges of a turn, by what is left of it.
TEST(ComputerTurn, ToldCases) {
  const struct {
    const char* rule;
    const char* hand;
    const char* own;
    const char* pile;
    const char* stock;
    const char* left;
    const char* own_after;
    const char* pile_after;
  } kCases[] = {
      {"with three cards no meld is tried", "5d 6d 7d", "", "Kc", "2h 2c", "5d 6d 7d", "", "Kc 2h"},
      {"with three cards additions still run", "5d 9c Js", "2d 3d 4d", "Kc", "2h 2c", "9c Js",
       "2d 3d 4d 5d", "Kc 2h"},
      {"a meld with the stock card leaves the pile", "2h 5d 6d 9c", "", "Kc", "7d 2c", "9c",
       "5d 6d 7d", "Kc 2h"},
      {"a meld can empty the hand", "5c 6c 8c 9c", "", "Kd 7c", "2h 2c", "", "5c 6c 7c 8c 9c",
       "Kd"},
      {"the last real card laid, the drawn one goes out", "5d", "2d 3d 4d", "Kc", "9h 2c", "",
       "2d 3d 4d 5d", "Kc 9h"},
      {"both the last card and the pile's fit", "5d", "2d 3d 4d | 8s 8c 8h", "Kc 8d", "9h 2c", "",
       "2d 3d 4d 5d | 8c 8h 8d 8s", "Kc"},
      {"the pile's only card may be taken", "2h 5c 8c Js", "4s 5s 6s", "7s", "9h 2c", "5c 8c Js",
       "4s 5s 6s 7s", "2h"},
      {"after a meld the last slot is no copy of the pile", "2c 5d 6d 3s", "4s 5s 6s", "Kc",
       "7d 9h", "", "3s 4s 5s 6s | 5d 6d 7d", "Kc 2c"},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.rule);
    Deal d;
    d.hand(2, c.hand);
    d.table(2, c.own);
    d.pile(c.pile);
    d.stock(c.stock);
    d.s.scelta_pesca = kFromStock;  // by the seat before
    play(d, 2);
    EXPECT_EQ(d.hand_text(2), c.left);
    EXPECT_EQ(d.table_text(2), c.own_after);
    EXPECT_EQ(d.pile_text(), c.pile_after);
    EXPECT_TRUE(d.s.ha_pescato);
  }
}

// Seat 3's partner is the person: it adds to seat 1's melds, and never to the other side's.
TEST(ComputerTurn, EachSeatAddsToItsOwnSideOnly) {
  for (int seat = 2; seat <= 4; ++seat) {
    for (int owner = 1; owner <= 4; ++owner) {
      Deal d;
      d.hand(seat, "5d");
      d.table(owner, "2d 3d 4d");
      d.pile("Kc");
      play(d, seat);
      const bool same_side = seat % 2 == owner % 2;
      EXPECT_EQ(d.table_text(owner), same_side ? "2d 3d 4d 5d" : "2d 3d 4d") << seat << owner;
      EXPECT_EQ(d.s.compagno, seat == 2 ? 4 : seat == 3 ? 1 : 2);
    }
  }
}

// The last stock card is drawn, the discard fills the pile, and it is shuffled, also when that
// discard emptied the hand; after the person's turn as well.
TEST(AnyTurn, TheLastStockCardBringsTheReshuffle) {
  for (const int seat : {1, 3}) {
    for (const char* text : {"2h 6h 10h", ""}) {
      Deal d;
      d.stock_at(104);
      d.hand(seat, text);
      const int before = d.s.n_mano[seat];
      d.s.di_turno = static_cast<std::uint8_t>(seat);
      if (seat == 1) d.post(kDrawStock);
      if (seat == 1) d.discard(1);
      EXPECT_EQ(d.rules.match.play_turn(), before == 0);
      EXPECT_EQ(only(d.log, {"stock_empty", "reshuffle"}),
                (Log{"stock_empty", "reshuffle_message", "reshuffle_begins", "reshuffle_ends"}));
      EXPECT_EQ(d.s.n_mano[seat], before);
      EXPECT_EQ(d.s.n_pozzo, 1);
      EXPECT_EQ(d.s.tallone, 54);
    }
  }
}

}  // namespace
}  // namespace tombrello::test
