#include <gtest/gtest.h>

#include <map>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

/// Discards from a hand of seat 3, and answers what lies on the pile then.
std::string discarded(Deal& d, const std::string& hand) {
  d.pile("Kc");
  d.hand(3, hand);
  d.log.clear();
  d.rules.discard.scarto_carta(3);
  return name_of(d.rules.deck.top_of_pile());
}

// The suit held with the fewest ranks; of it an Ace without 2, 3 and 4, a King without 10, Jack
// and Queen, or the card with the widest equal gaps beside it. Without any such card, the first
// of neighbouring twins. Of two copies the lower slot goes.
TEST(Discard, ToldCases) {
  const struct {
    const char* rule;
    const char* hand;
    const char* discarded;
  } kCases[] = {
      {"an Ace", "5h Ah 9h Kh", "Ah"},
      {"an Ace with the 4: the King", "4h Ah 9h Kh", "Kh"},
      {"an Ace with the 2: the King", "2h Ah 9h Kh", "Kh"},
      {"a King", "6h 9h Kh", "Kh"},
      {"a King with the 10: the widest gaps", "3h 6h 10h Kh", "3h"},
      {"a King with the Queen: the widest gaps", "2h 6h 7h Qh Kh", "2h"},
      {"six ranks to either side", "7h", "7h"},
      {"five on one side", "6h", "6h"},
      {"four against three", "4h 9h", "9h"},
      {"four to either side", "2h 7h Qh", "7h"},
      {"three against two", "3h 6h 10h", "10h"},
      {"two against one", "2h 4h 7h 10h", "7h"},
      {"one against none", "3h 4h 6h 8h 9h", "6h"},
      {"the lowest of equals", "10h 9h 6h 4h 3h 2h 8h", "6h"},
      {"gaps end with the suit", "2h 3h 5h 9h Qh", "9h"},
      {"the suit with the fewest ranks", "6h 9h 6d 9d Qd 8c", "8c"},
      {"the first of equal suits", "6s 6c 6d 9d", "6c"},
      {"a suit with all ranks is never chosen", "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Jh' Qh Kh",
       "Jh"},
      {"the lower slot of two copies", "9d Kd' 6d Kd", "Kd'"},
      {"twins side by side", "5h 6h 7h' 7h", "7h'"},
      {"the first of them", "5h 6h 6h' 7h' 7h", "6h"},
      {"a shape before twins", "9h 9h' 5h", "5h"},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.rule);
    Deal d;
    EXPECT_EQ(discarded(d, c.hand), c.discarded);
    EXPECT_EQ(d.log, (Log{"suona", std::string("pile ") + c.discarded}));
    auto left = cards(c.hand);
    *std::find(left.begin(), left.end(), card(c.discarded)) = 0;
    EXPECT_EQ(d.hand_of(3), left);
  }
}

// Without an answer every card of the hand may go, each about as often; twins that lie apart are
// no answer.
TEST(Discard, ChanceReachesEveryCard) {
  for (const char* hand : {"Ah 2h", "5h 6h 5h' 6h'", "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh"}) {
    Deal d;
    std::map<std::string, int> times;
    for (int n = 0; n < 6500; ++n) ++times[discarded(d, hand)];
    EXPECT_EQ(times.size(), cards(hand).size()) << hand;
    const double mean = 6500.0 / static_cast<double>(times.size());
    for (const auto& [card, often] : times) EXPECT_NEAR(often, mean, mean / 3) << card;
  }
}

}  // namespace
}  // namespace tombrello::test
