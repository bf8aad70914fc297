#include <gtest/gtest.h>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

/// The table of tests on a suit's thirteen characters; 0 if none holds.
int rank_by_shape(const std::string& slice) {
  for (const char* start : {"*_____", "*____", "*___"}) {
    if (slice.rfind(start, 0) == 0) return 1;
  }
  for (const std::string end : {"_____*", "____*", "___*"}) {
    if (slice.substr(13 - end.size()) == end) return 13;
  }
  for (const char* lonely :
       {"______*______", "_____*_____", "____*____", "___*___", "__*__", "_*_"}) {
    const auto at = slice.find(lonely);
    if (at != std::string::npos) return static_cast<int>(at + std::string(lonely).find('*') + 1);
  }
  return 0;
}

int suit_by_shape(const std::vector<int>& hand) {
  int chosen = 0;
  std::ptrdiff_t best = 0;
  for (int suit = 1; suit <= 4; ++suit) {
    const auto slice = slice_text(hand, suit);
    const auto gaps = std::count(slice.begin(), slice.end(), '_');
    if (gaps == 13 || gaps <= best) continue;
    best = gaps;
    chosen = suit;
  }
  return chosen;
}

int discarded_slot(Deal& d, int seat, const std::vector<int>& hand) {
  d.hand(seat, hand);
  d.rules.discard.scarto_carta(seat);
  int slot = 0;
  for (int k = 1; k <= static_cast<int>(hand.size()); ++k) {
    if (d.s.mano[seat][k] != 0) continue;
    EXPECT_EQ(slot, 0) << "two cards gone";
    slot = k;
  }
  EXPECT_EQ(d.pile_text(), "Kc " + name_of(hand[static_cast<std::size_t>(slot - 1)]));
  return slot;
}

// In each of the 8191 shapes of a suit the table of tests names the rank; where it names none,
// any card may go. Both packs are in play, and of two copies the lower slot goes.
TEST(Discard, EveryShapeOfASuit) {
  std::mt19937 engine(4);
  for (unsigned held = 1; held < 1U << 13; ++held) {
    std::vector<int> hand;
    for (int rank = 1; rank <= 13; ++rank) {
      if ((held >> (rank - 1) & 1U) != 0) hand.push_back(39 + rank + (engine() % 2 ? 52 : 0));
    }
    const int rank = rank_by_shape(slice_text(hand, 4));
    if (rank != 0 && hand.size() < 13) hand.push_back(92 + rank - 1);
    std::shuffle(hand.begin(), hand.end(), engine);
    Deal d;
    const int slot = discarded_slot(d, 3, hand);
    if (rank == 0) continue;
    const auto first = std::find_if(hand.begin(), hand.end(),
                                    [&](int code) { return (code - 1) % 52 == 38 + rank; });
    ASSERT_EQ(slot, first - hand.begin() + 1) << names(hand);
  }
}

// Whole hands: the suit with the fewest ranks, then its shape, then neighbouring twins.
TEST(Discard, TheSuitThenTheShapeThenTwins) {
  std::mt19937 engine(6);
  int ways[3] = {};
  for (int n = 0; n < 30000; ++n) {
    auto hand = random_deck(engine);
    // A small deck has more twins and more awkward shapes.
    if (n % 2 == 0) {
      hand.erase(std::remove_if(hand.begin(), hand.end(), [](int c) { return ValCarta(c) > 4; }),
                 hand.end());
    }
    hand.resize(1 + engine() % 13);
    const int suit = suit_by_shape(hand);
    const int rank = suit == 0 ? 0 : rank_by_shape(slice_text(hand, suit));
    std::size_t expected = 0;
    while (rank != 0 && (hand[expected] - 1) % 52 != (suit - 1) * 13 + rank - 1) ++expected;
    if (rank == 0) {
      while (expected + 1 < hand.size() && std::abs(hand[expected] - hand[expected + 1]) != 52) {
        ++expected;
      }
    }
    const bool by_chance = rank == 0 && expected + 1 == hand.size();
    ++ways[rank != 0 ? 0 : by_chance ? 2 : 1];
    Deal d;
    const int slot = discarded_slot(d, 2, hand);
    if (by_chance) continue;
    ASSERT_EQ(slot, static_cast<int>(expected) + 1) << names(hand);
    ASSERT_EQ(d.log, (Log{"suona", "pile " + d.pile_text().substr(3)}));
  }
  for (const int times : ways) EXPECT_GT(times, 250);
}

// Without an answer every card of the hand may go, each about as often.
TEST(Discard, ChanceReachesEveryCard) {
  for (const char* text : {"Ah 2h", "4h 5h 6h 7h", "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh"}) {
    Deal d;
    const auto hand = cards(text);
    std::vector<int> times(hand.size() + 1);
    for (int n = 0; n < 6500; ++n) {
      d.pile("Kc");
      ++times[static_cast<std::size_t>(discarded_slot(d, 4, hand))];
    }
    const int expected = 6500 / static_cast<int>(hand.size());
    for (std::size_t slot = 1; slot < times.size(); ++slot) {
      EXPECT_NEAR(times[slot], expected, expected / 3.0) << text << ", slot " << slot;
    }
  }
}

}  // namespace
}  // namespace tombrello::test
