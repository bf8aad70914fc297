#include <gtest/gtest.h>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

// Scalas with the pile's top card and with the stock card, then melds of one rank with either.
// The melds lie in codes of the first pack, whatever the pack of their cards. A list has 30
// positions; a find that doesn't fit counts as none, and the next way is tried.
TEST(MeldDecision, ToldCases) {
  const std::string kTwentyFive =
      "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh Ah' | Ad 2d 3d 4d 5d 6d 7d 8d 9d";
  const std::string kTwentySeven = kTwentyFive + " 10d Jd";
  const struct {
    const char* rule;
    std::string list;
    const char* hand;
    const char* pile;
    const char* stock;
    int taken;
    const char* meld;
    const char* left;
  } kCases[] = {
      {"a scala with the pile", "", "5d 9c 7d' Js", "6d'", "2h", 1, "5d 6d 7d", "9c Js"},
      {"a scala with the stock", "", "5d 9c 7d Js", "2h", "6d", 2, "5d 6d 7d", "9c Js"},
      {"a candidate is drawn for a meld of the hand", "", "5d 6d 7d 9c", "2h", "2s", 1, "5d 6d 7d",
       "9c 2h"},
      {"the pile's scala first", "", "5d 6d 9c 10c", "7d", "Jc", 1, "5d 6d 7d", "9c 10c"},
      {"the stock's scala before the pile's tris", "", "5d 6d 9c 9s", "9h", "7d", 2, "5d 6d 7d",
       "9c 9s"},
      {"nothing", "", "5d 6d 8d 8s", "9h", "Qc", 0, "", "5d 6d 8d 8s"},
      {"the candidates alone make no meld together", "", "5d 2s 8s Js", "6d", "7d", 0, "",
       "5d 2s 8s Js"},
      {"the first suit, not the longest", "", "3h 4h 8c 9c 10c Jc", "5h", "2s", 1, "3h 4h 5h",
       "8c 9c 10c Jc"},
      {"the longest of a suit", "", "3s 4s 5s 8s 9s 10s", "Js", "2h", 1, "8s 9s 10s Js",
       "3s 4s 5s"},
      {"the lowest of equals", "", "3s 4s 5s 8s 9s", "10s", "2h", 1, "3s 4s 5s", "8s 9s 10s"},
      {"from Ace to King", "", "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh", "Kh", "2s", 1,
       "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh", ""},
      {"not from King to Ace", "", "Qh Kh 5c 8s", "Ah", "2h", 0, "", "Qh Kh 5c 8s"},
      {"a copy counts once", "", "5d 6d 6d' 8c", "5d'", "8c'", 0, "", "5d 6d 6d' 8c"},
      {"of two copies the lower slot goes", "", "6d' 5d 6d 7d", "2h", "Qc", 1, "5d 6d 7d", "6d 2h"},
      {"a tris with the pile", "", "9h 9d' Js 5c", "9c", "2h", 1, "9h 9d 9c", "Js 5c"},
      {"a tris with the stock", "", "9h 9d Js 5c", "2h", "9s", 2, "9h 9d 9s", "Js 5c"},
      {"a tris without diamonds", "", "9h 9c Js 5c", "9s", "2h", 1, "9h 9c 9s", "Js 5c"},
      {"a tris without hearts", "", "9d 9c Js 5c", "9s", "2h", 1, "9d 9c 9s", "Js 5c"},
      {"the lowest rank, all of it", "", "9h 9d 9c Kh Kd 9s Ks", "Kc", "2h", 1, "9h 9d 9c 9s",
       "Kh Kd Ks Kc"},
      {"five don't fit, four do", kTwentyFive, "3c 4c 5c 6c", "7c", "Ks", 2, "3c 4c 5c 6c", "Ks"},
      {"five don't fit", kTwentyFive, "3c 4c 5c 6c 7c", "2s", "Ks", 0, "", "3c 4c 5c 6c 7c"},
      {"but a tris does", kTwentyFive, "3c 4c 5c 6c 7c 2h 2d", "2s", "Ks", 1, "2h 2d 2s",
       "3c 4c 5c 6c 7c"},
      {"the spades that fit aren't looked at", kTwentyFive, "3c 4c 5c 6c 7c 3s 4s 5s", "9d", "Ks",
       0, "", "3c 4c 5c 6c 7c 3s 4s 5s"},
      {"a poker just fits", kTwentyFive, "8h 8d 8c 8s", "9d", "Ks", 1, "8h 8d 8c 8s", "9d"},
      {"a tris doesn't", kTwentySeven, "8h 8d 3c Js", "8c", "8s", 0, "", "8h 8d 3c Js"},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.rule);
    Deal d;
    d.table(3, c.list);
    d.hand(3, c.hand);
    d.pile(std::string("Kc ") + c.pile);
    d.stock(std::string(c.stock) + " 2c");
    const auto presenze = d.s.presenze_salvate = d.s.presenze[3];
    d.rules.meld_decision.decido_calata(3);
    EXPECT_EQ(d.s.scelta_pesca, c.taken);
    EXPECT_EQ(d.table_text(3), c.list + (c.list.empty() || *c.meld == 0 ? "" : " | ") + c.meld);
    EXPECT_EQ(d.hand_text(3), c.left);
    EXPECT_EQ(d.s.n_pozzo, c.taken == 1 ? 1 : 2);
    EXPECT_EQ(d.s.tallone, c.taken == 2 ? 104 : 103);
    EXPECT_TRUE(c.taken != 0 || d.s.presenze[3] == presenze);
  }
}

}  // namespace
}  // namespace tombrello::test
