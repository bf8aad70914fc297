#include <gtest/gtest.h>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

struct Found {
  int candidate = 0;
  std::string meld;
};

/// The search, written with strings: scalas with either candidate, then melds of one rank.
Found search(const std::vector<int>& hand, const std::vector<int>& candidates) {
  for (const bool scala : {true, false}) {
    for (int c = 1; c <= 2; ++c) {
      auto tried = hand;
      tried.push_back(candidates[static_cast<std::size_t>(c - 1)]);
      std::vector<int> meld;
      for (int suit = 1; scala && suit <= 4; ++suit) {
        for (int length = 13; length >= 3; --length) {
          const auto run = std::string(static_cast<std::size_t>(length), '*');
          const auto at = slice_text(tried, suit).find(run);
          if (at == std::string::npos) continue;
          for (int k = 1; k <= length; ++k) {
            meld.push_back((suit - 1) * 13 + static_cast<int>(at) + k);
          }
          return {c, names(meld)};
        }
      }
      for (std::size_t rank = 0; !scala && rank < 13; ++rank) {
        meld.clear();
        for (int suit = 1; suit <= 4; ++suit) {
          if (slice_text(tried, suit)[rank] != '*') continue;
          meld.push_back((suit - 1) * 13 + static_cast<int>(rank) + 1);
        }
        if (meld.size() >= 3) return {c, names(meld)};
      }
    }
  }
  return {};
}

void decide(Deal& d, int seat) {
  d.s.presenze_salvate = d.s.presenze[seat];
  d.rules.meld_decision.decido_calata(seat);
}

// On random hands of every size the seat takes the candidate and lays the meld that the search
// finds; one copy of each card leaves the hand, from the lowest slot, and the rest stays.
TEST(MeldDecision, AgreesWithASearchOnStrings) {
  std::mt19937 engine(5);
  int found[3] = {};
  for (int n = 0; n < 20000; ++n) {
    Deal d;
    const auto deck = random_deck(engine);
    const auto size = static_cast<int>(4 + engine() % 10);
    const std::vector<int> hand(deck.begin(), deck.begin() + size);
    const std::vector<int> candidates{deck[20], deck[21]};
    d.hand(2, hand);
    d.pile("Kc " + name_of(candidates[0]));
    d.stock(name_of(candidates[1]) + " 2c");
    const auto expected = search(hand, candidates);
    ++found[expected.candidate];
    auto left = hand;
    if (expected.candidate != 0) {
      left.push_back(candidates[static_cast<std::size_t>(expected.candidate - 1)]);
    }
    for (const int code : cards(expected.meld)) {
      left.erase(std::find_if(left.begin(), left.end(),
                              [&](int held) { return held == code || held == code + 52; }));
    }
    decide(d, 2);
    ASSERT_EQ(d.s.scelta_pesca, expected.candidate) << names(hand);
    ASSERT_EQ(d.table_text(2), expected.meld) << names(hand);
    ASSERT_EQ(d.hand_of(2), left);
    ASSERT_EQ(d.s.n_pozzo, expected.candidate == 1 ? 1 : 2);
    ASSERT_EQ(d.s.tallone, expected.candidate == 2 ? 104 : 103);
    ASSERT_TRUE(expected.candidate != 0 || d.s.presenze[2] == d.s.presenze_salvate);
  }
  for (const int times : found) EXPECT_GT(times, 300) << "the hands should try every way out";
}

// A list has 30 positions. A pass whose find doesn't fit counts as having found nothing, and
// the next pass goes on.
TEST(MeldDecision, AFullListTakesOnlyWhatFits) {
  const std::string kTwentyFive =
      "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh Ah' | Ad 2d 3d 4d 5d 6d 7d 8d 9d";
  const std::string kTwentySeven = kTwentyFive + " 10d Jd";
  const struct {
    std::string list;
    const char* hand;
    const char* pile;
    const char* stock;
    int taken;
    const char* meld;
  } kCases[] = {
      {kTwentyFive, "3c 4c 5c 6c", "7c", "Ks", 2, "3c 4c 5c 6c"},  // five don't fit, four do
      {kTwentyFive, "3c 4c 5c 6c 7c", "2s", "Ks", 0, ""},
      {kTwentyFive, "3c 4c 5c 6c 7c 2h 2d", "2s", "Ks", 1, "2h 2d 2s"},
      {kTwentyFive, "3c 4c 5c", "2s", "Ks", 1, "3c 4c 5c"},
      // The spades would fit: not looked at
      {kTwentyFive, "3c 4c 5c 6c 7c 3s 4s 5s", "9d", "Ks", 0, ""},
      {kTwentyFive, "8h 8d 8c 8s", "9d", "Ks", 1, "8h 8d 8c 8s"},
      {kTwentySeven, "8h 8d 3c Js", "8c", "8s", 0, ""},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.hand);
    Deal d;
    d.table(3, c.list);
    ASSERT_GE(d.s.n_calate[3], 25);
    d.hand(3, c.hand);
    d.pile(c.pile);
    d.stock(c.stock);
    decide(d, 3);
    EXPECT_EQ(d.s.scelta_pesca, c.taken);
    EXPECT_EQ(d.table_text(3), c.list + (*c.meld == 0 ? "" : std::string(" | ") + c.meld));
  }
}

}  // namespace
}  // namespace tombrello::test
