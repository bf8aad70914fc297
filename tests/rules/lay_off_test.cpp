#include <gtest/gtest.h>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

// What a seat adds to one of its side's lists, from the left, at most one card a meld; of equal
// cards the lowest slot goes. Before the draw the last slot is a copy of the pile's top card.
TEST(LayOff, ToldCases) {
  const struct {
    const char* rule;
    int owner;
    const char* list;
    const char* hand;
    bool drawn;
    const char* after;
    const char* left;
  } kCases[] = {
      {"the card after the last", 2, "3h 4h 5h", "6h 8h Ks Qs", true, "3h 4h 5h 6h", "8h Ks Qs"},
      {"the card before the first", 2, "3h 4h 5h", "Ks 2h", true, "2h 3h 4h 5h", "Ks"},
      {"either pack's, the lowest slot", 2, "3h 4h 5h", "6h' 6h", true, "3h 4h 5h 6h'", "6h"},
      {"the lowest slot of both ends", 2, "4h 5h 6h", "Ks 7h 3h", true, "4h 5h 6h 7h", "Ks 3h"},
      {"one card a meld", 2, "3h 4h 5h", "6h 7h", true, "3h 4h 5h 6h", "7h"},
      {"four cards: neighbours stay", 2, "3h 4h 5h", "6h 7h Ks Qs", true, "3h 4h 5h",
       "6h 7h Ks Qs"},
      {"below as well", 2, "7h 8h 9h", "6h 5h Ks Qs", true, "7h 8h 9h", "6h 5h Ks Qs"},
      {"an Ace: the 3 counts", 2, "2h 3h 4h", "Ah 3h' 9s 5s", true, "2h 3h 4h", "Ah 3h' 9s 5s"},
      {"an Ace: the 2 counts", 2, "2h 3h 4h", "Ah 2h' 9s 5s", true, "2h 3h 4h", "Ah 2h' 9s 5s"},
      {"an Ace: the King doesn't", 2, "2h 3h 4h", "Ah Kh 9s 5s", true, "Ah 2h 3h 4h", "Kh 9s 5s"},
      {"a King: the Jack counts", 2, "10h Jh Qh", "Kh Jh' 9s 5s", true, "10h Jh Qh",
       "Kh Jh' 9s 5s"},
      {"a King: the Queen counts", 2, "10h Jh Qh", "Kh Qh' 9s 5s", true, "10h Jh Qh",
       "Kh Qh' 9s 5s"},
      {"a King: the 10 doesn't", 2, "Ah 2h 3h", "Kh 10h 9s 5s", true, "Kh Ah 2h 3h", "10h 9s 5s"},
      {"the partner's: no holding back", 4, "3h 4h 5h", "6h 7h Ks Qs", true, "3h 4h 5h 6h",
       "7h Ks Qs"},
      {"from King to Ace", 2, "Jh Qh Kh", "Ah 4h 9s 5s", true, "Jh Qh Kh Ah", "4h 9s 5s"},
      {"from Ace to King", 4, "Ah 2h 3h", "Kh 4s", true, "Kh Ah 2h 3h", "4s"},
      {"the pile's card", 2, "3h 4h 5h", "Ks Qs 9s As 6h'", false, "3h 4h 5h 6h'", "Ks Qs 9s As"},
      {"the pile's card stays with a neighbour", 2, "3h 4h 5h", "Ks Qs 7h As 6h", false, "3h 4h 5h",
       "Ks Qs 7h As 6h"},
      {"a tris becomes a poker", 2, "7h 7d 7c", "6s 7s 8s 9s", true, "7h 7d 7s 7c", "6s 8s 9s"},
      {"a tris without hearts", 2, "7d 7c 7s", "6h 7h 8h", true, "7d 7c 7h 7s", "6h 8h"},
      {"a poker is full", 2, "7h 7d 7c 7s", "7s' 2s", true, "7h 7d 7c 7s", "7s' 2s"},
      {"a suit that is there", 2, "7h 7d 7c", "7h' 2s", true, "7h 7d 7c", "7h' 2s"},
      {"several melds, the pile's card too", 2, "3h 4h 5h | 3d 4d 5d", "6h 6d", false,
       "3h 4h 5h 6h | 3d 4d 5d 6d", ""},
      {"melds that meet don't join", 2, "3h 4h 5h | 7h 8h 9h", "6h 2s", true,
       "3h 4h 5h 6h | 7h 8h 9h", "2s"},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.rule);
    Deal d;
    d.table(c.owner, c.list);
    d.hand(2, c.hand);
    d.s.ha_pescato = c.drawn;
    const int last = d.hand_of(2).back();
    d.pile("Kc " + name_of(last));
    d.rules.lay_off.Provo_Attacco(2, c.owner);
    EXPECT_EQ(d.table_text(c.owner), c.after);
    EXPECT_EQ(d.hand_text(2), c.left);
    const auto left = d.hand_of(2);
    const bool took_pile = !c.drawn && std::count(left.begin(), left.end(), last) == 0;
    EXPECT_EQ(d.s.ha_pescato, c.drawn || took_pile);
    EXPECT_EQ(d.pile_text(), took_pile ? "Kc" : "Kc " + name_of(last));
  }
}

// A lay-off needs two positions more for a moment: on a list of 29 the search ends, the pile
// untouched; on one of 28 a card still goes.
TEST(LayOff, NeverPassesTheListsThirtyPositions) {
  const std::string a_k = "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh";
  for (const auto& [list, room] :
       {std::pair{a_k + " | 2d 3d 4d 5d 6d 7d 8d 9d 10d | Kc Kd Kh", true},
        std::pair{a_k + " | 2d 3d 4d 5d 6d 7d 8d 9d 10d Jd | Kc Kd Kh", false}}) {
    Deal d;
    d.table(4, list);
    ASSERT_EQ(d.s.n_calate[4], room ? 28 : 29);
    d.hand(2, "2s 4s 6s Ks");
    d.pile("Kc Ks");
    d.rules.lay_off.Provo_Attacco(2, 4);
    EXPECT_EQ(d.s.n_calate[4], 29);
    EXPECT_EQ(d.s.ha_pescato, room);
    EXPECT_EQ(d.hand_text(2), room ? "2s 4s 6s" : "2s 4s 6s Ks");
    EXPECT_EQ(d.pile_text(), room ? "Kc" : "Kc Ks");
  }
}

}  // namespace
}  // namespace tombrello::test
