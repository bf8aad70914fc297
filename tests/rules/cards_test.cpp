#include <gtest/gtest.h>

#include <set>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

// A shuffle leaves every card once, and depends on the clock's reading alone.
TEST(Shuffle, IsAPermutationThatFollowsTheClockAlone) {
  std::set<std::vector<int>> seen;
  for (std::uint64_t clock = 0; clock < 300; ++clock) {
    Deal d;
    Deal same;
    d.clock = same.clock = CountingClock(clock);
    for (std::uint64_t k = 0; k < clock % 7; ++k) d.rules.random.next();
    d.rules.deck.Mescola();
    same.rules.deck.Mescola();
    ASSERT_EQ(d.s.mazzo, same.s.mazzo) << clock;
    seen.insert({d.s.mazzo.begin(), d.s.mazzo.end()});
    std::sort(d.s.mazzo.begin(), d.s.mazzo.end());
    for (int i = 0; i <= kCards; ++i) ASSERT_EQ(d.s.mazzo[i], i);
  }
  EXPECT_EQ(seen.size(), 300U) << "two clocks dealt the same deck";
}

// The reshuffle comes with a full pile alone; it puts the pile's 52 cards behind the deal, the
// last discard without a privilege.
TEST(Reshuffle, SharesOutThePileAndLeavesTheDealtSlotsAlone) {
  std::set<int> turned_up;
  for (std::uint64_t clock = 0; clock < 200; ++clock) {
    Deal d(clock);
    d.stock_at(104);
    const auto before = d.s.mazzo;
    d.rules.deck.reshuffle_when_full();
    ASSERT_EQ(d.log, Log{});
    d.rules.deck.add_to_pile(104);
    d.rules.deck.reshuffle_when_full();
    const auto& after = d.s.mazzo;
    ASSERT_TRUE(std::equal(before.begin(), before.begin() + 53, after.begin()));
    ASSERT_TRUE(std::is_permutation(after.begin() + 53, after.end(), before.begin() + 53));
    ASSERT_EQ(d.pile_text(), name_of(after[53]));
    ASSERT_EQ(d.s.tallone, 54);
    ASSERT_EQ(d.log, (Log{"ritardo 0.1", "reshuffle_message", "reshuffle_begins", "ritardo 0.3",
                          "ritardo 1", "reshuffle_ends", "pile " + d.pile_text(), "stock 1",
                          "ritardo 0.3"}));
    turned_up.insert(after[53]);
  }
  EXPECT_GT(turned_up.size(), 45U) << "of 52";
}

// What is shown of a deal, told card by card. A pause follows each packet, but for a last
// packet that isn't seat 4's.
Log told_deal(const State& s, int dealer) {
  Log told{"Posiziona_Players", "Apri_suono carta", "stock 0"};
  for (int slot = 1; slot <= 52; ++slot) {
    const int seat = (dealer + (slot - 1) / 13) % 4 + 1;
    const int k = (slot - 1) % 13 + 1;
    told.push_back("ritardo 0.03");
    if (seat != 1) told.push_back("suona");
    told.push_back("dealt " + number(seat) + " " + number(k) + " " + name_of(s.mazzo[slot]));
    told.push_back(s.mazzo[slot + 1] > 52 ? "stock 1" : "stock 0");
    if (seat == 1) told.push_back("suona");
    if (k == 13 && (slot < 52 || seat == 4)) told.push_back("ritardo 0.1");
  }
  const Log end{"Set_Write", "pile " + name_of(s.mazzo[53]),
                s.mazzo[54] > 52 ? "stock 1" : "stock 0", "ritardo 0.01"};
  told.insert(told.end(), end.begin(), end.end());
  return told;
}

// The seat after the dealer gets the first packet, the dealer the last; the deck is kept when
// all 52 cards are out.
TEST(DealTest, EachDealerDealsFourPacketsInTurnOrder) {
  for (int dealer = 1; dealer <= 4; ++dealer) {
    SCOPED_TRACE(dealer);
    Deal d;
    d.rules.match.Gioco_Imposta();
    d.s.cartaro = static_cast<std::uint8_t>(dealer);
    d.log.clear();
    d.rules.deck.daicarte();
    for (int slot = 1; slot <= 52; ++slot) {
      const int seat = (dealer + (slot - 1) / 13) % 4 + 1;
      ASSERT_EQ(d.s.mano[seat][(slot - 1) % 13 + 1], d.s.mazzo[slot]);
      ASSERT_TRUE(d.s.presenze[seat].holds(first_pack_twin(d.s.mazzo[slot])));
    }
    EXPECT_EQ(d.pile_text(), name_of(d.s.mazzo[53]));
    EXPECT_EQ(d.s.tallone, 54);
    EXPECT_EQ(d.log, told_deal(d.s, dealer));
  }
}

// Person and computer draw by one rule, at every height of the stock; the last stock card
// leaves `tallone` at 104.
TEST(Drawing, FromPileAndStockAtEveryHeight) {
  for (int tallone = 54; tallone <= 104; ++tallone) {
    for (int seat = 1; seat <= 4; ++seat) {
      SCOPED_TRACE(testing::Message() << tallone << " seat " << seat);
      Deal d;
      d.stock_at(tallone);
      d.hand(seat, "Ah Ad");
      d.rules.deck.take_from_stock(seat);
      EXPECT_EQ(d.hand_of(seat), (std::vector<int>{1, 14, tallone}));
      EXPECT_EQ(d.s.tallone, std::min(tallone + 1, 104));
      EXPECT_EQ(d.log.back(), tallone == 104 ? "stock_empty" : "stock 1");
      EXPECT_EQ(only(d.log, {"landed"}).size(), seat == 1 ? 0U : 1U);

      d.stock_at(tallone);
      const int on_top = d.rules.deck.top_of_pile();
      d.rules.deck.take_from_pile(seat);
      EXPECT_EQ(d.hand_of(seat).back(), on_top);
      EXPECT_EQ(d.s.n_pozzo, tallone - 54);
      EXPECT_EQ(d.log.back(), tallone == 54 ? "pile_empty" : "pile " + name_of(on_top - 1));
      EXPECT_EQ(d.s.tallone, tallone);
    }
  }
}

// A generator that was never shuffled with still starts from the clock, so that two replays of a
// hand don't make the same random choices.
TEST(Chance, StartsFromTheClock) {
  CountingClock one(1);
  CountingClock two(2);
  CountingClock again(1);
  const double first = Random(one).next();
  EXPECT_NE(first, Random(two).next());
  EXPECT_EQ(first, Random(again).next());
}

}  // namespace
}  // namespace tombrello::test
