#include <gtest/gtest.h>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

using Meld = std::vector<int>;

bool lower_rank(int a, int b) {
  return ValCarta(a) < ValCarta(b);
}

/// The search, written with lists of melds and patterns on strings.
struct Search {
  std::vector<Meld> melds;
  Meld hand;  // the last card may be a copy of the pile's top card
  bool own;
  bool drawn;
  int laid = 0;

  int positions() const {
    int n = static_cast<int>(melds.size());
    for (const auto& meld : melds) n += static_cast<int>(meld.size());
    return n;
  }

  bool fits_scala(const Meld& meld, int code) const {
    if (Seme(code) != Seme(meld.front())) return false;
    const int behind = ValCarta(meld.back()) % 13 + 1;
    const int before = (ValCarta(meld.front()) + 11) % 13 + 1;
    if (ValCarta(code) != behind && ValCarta(code) != before) return false;
    if (!own || hand.size() < 4) return true;
    const auto slice = slice_text(hand, Seme(code));
    const auto at = static_cast<std::size_t>(ValCarta(code) - 1);
    if (at == 0) return slice.compare(0, 3, "*__") == 0;
    if (at == 12) return slice.compare(10, 3, "__*") == 0;
    return slice.compare(at - 1, 3, "_*_") == 0;
  }

  bool fits_tris(const Meld& meld, int code) const {
    const bool suit_there =
        std::any_of(meld.begin(), meld.end(), [&](int c) { return Seme(c) == Seme(code); });
    return meld.size() == 3 && !suit_there && ValCarta(meld[0]) == ValCarta(code);
  }

  void run() {
    for (auto& meld : melds) {
      const bool scala = Seme(meld[meld.size() - 1]) == Seme(meld[meld.size() - 2]);
      const auto chosen = std::find_if(hand.begin(), hand.end(), [&](int code) {
        return scala ? fits_scala(meld, code) : fits_tris(meld, code);
      });
      if (chosen == hand.end()) continue;
      if (positions() > 28) return;
      drawn = drawn || chosen + 1 == hand.end();
      const bool behind = scala && ValCarta(*chosen) == ValCarta(meld.back()) % 13 + 1;
      meld.insert(behind ? meld.end() : meld.begin(), *chosen);
      if (meld.size() == 13) std::sort(meld.begin(), meld.end(), lower_rank);  // no break left
      hand.erase(chosen);
      ++laid;
    }
  }
};

Meld random_meld(std::mt19937& engine) {
  Meld meld;
  const int suit = static_cast<int>(engine() % 4);
  const int rank = static_cast<int>(engine() % 13);
  if (engine() % 3 == 0) {
    for (int s = 0; s < 4; ++s) meld.push_back(s * 13 + rank + 1);
    std::shuffle(meld.begin(), meld.end(), engine);
    if (engine() % 3 != 0) meld.pop_back();
  } else {
    const int length = static_cast<int>(engine() % 5 == 0 ? 3 + engine() % 11 : 3 + engine() % 3);
    for (int k = 0; k < length; ++k) {
      meld.push_back(suit * 13 + (rank + k) % 13 + 1);
    }
    if (length == 13) std::sort(meld.begin(), meld.end());
  }
  return meld;
}

/// The melds of a list by suit and rank; melds of one rank lie in any order.
std::vector<Meld> melds_on_table(const std::vector<int>& list) {
  std::vector<Meld> melds(1);
  for (const int entry : list) {
    if (entry == kSentinel) {
      melds.emplace_back();
    } else {
      melds.back().push_back(first_pack_twin(entry));
    }
  }
  for (auto& meld : melds) {
    const auto other = [&](int c) { return Seme(c) != Seme(meld[0]); };
    if (std::any_of(meld.begin(), meld.end(), other)) std::sort(meld.begin(), meld.end());
  }
  return melds;
}

std::string list_text(const std::vector<Meld>& melds) {
  std::string text;
  for (const auto& meld : melds) text += (text.empty() ? "" : " | ") + names(meld);
  return text;
}

// Random lists and hands, own and partner's list, drawn or with the pile's card for a try.
TEST(LayOff, AgreesWithASearchOnStrings) {
  std::mt19937 engine(7);
  int laid[5] = {};
  int took_pile = 0;
  for (int n = 0; n < 20000; ++n) {
    const bool own = engine() % 2 == 0;
    Search expected{{}, {}, own, engine() % 2 == 0};
    do {
      expected.melds.push_back(random_meld(engine));
    } while (engine() % 3 != 0 && expected.positions() < 20);
    if (expected.positions() > 30) continue;
    const auto deck = random_deck(engine);
    expected.hand.assign(deck.begin(), deck.begin() + 1 + static_cast<int>(engine() % 14));

    Deal d;
    const int owner = own ? 2 : 4;
    d.hand(2, expected.hand);
    d.table(owner, list_text(expected.melds));
    d.pile("Kc " + name_of(expected.hand.back()));
    d.s.ha_pescato = expected.drawn;
    const bool drawn_before = expected.drawn;
    const auto start = names(expected.hand) + " on " + d.table_text(owner);
    expected.run();
    d.rules.computer.Provo_Attacco(2, owner);
    SCOPED_TRACE(start);
    ASSERT_EQ(melds_on_table(cards(d.table_text(owner))),
              melds_on_table(cards(list_text(expected.melds))));
    ASSERT_EQ(d.hand_of(2), expected.hand);
    ASSERT_EQ(d.s.ha_pescato, expected.drawn);
    ASSERT_EQ(d.s.n_pozzo, expected.drawn && !drawn_before ? 1 : 2);
    ASSERT_EQ(static_cast<int>(only(d.log, {"beep"}).size()), expected.laid);
    ++laid[std::min(expected.laid, 4)];
    took_pile += expected.drawn && !drawn_before;
  }
  EXPECT_GT(laid[2], 100) << "some calls should lay off on several melds";
  EXPECT_GT(took_pile, 100);
}

TEST(LayOff, ToldCases) {
  const struct {
    const char* list;
    const char* hand;
    bool drawn;
    const char* after;
    const char* left;
  } kOwn[] = {
      {"3h 4h 5h", "6h 8h Ks Qs", true, "3h 4h 5h 6h", "8h Ks Qs"},
      {"3h 4h 5h", "6h 7h Ks Qs", true, "3h 4h 5h", "6h 7h Ks Qs"},
      {"3h 4h 5h", "6h 7h", true, "3h 4h 5h 6h", "7h"},
      {"3h 4h 5h", "Ks Qs 9s As 6h'", false, "3h 4h 5h 6h'", "Ks Qs 9s As"},
      {"3h 4h 5h", "Ks Qs 7h As 6h", false, "3h 4h 5h", "Ks Qs 7h As 6h"},
      {"Jh Qh Kh", "Ah 4h 9s 5s", true, "Jh Qh Kh Ah", "4h 9s 5s"},
      {"7h 7d 7c", "6s 7s 8s 9s", true, "7h 7d 7s 7c", "6s 8s 9s"},
      {"3h 4h 5h | 3d 4d 5d", "6h 6d", false, "3h 4h 5h 6h | 3d 4d 5d 6d", ""},
      {"3h 4h 5h | 7h 8h 9h", "6h 2s", true, "3h 4h 5h 6h | 7h 8h 9h", "2s"},  // no join
      {"", "6h 2s", true, "", "6h 2s"},
  };
  for (const auto& c : kOwn) {
    SCOPED_TRACE(testing::Message() << c.list << " <- " << c.hand);
    Deal d;
    d.table(2, c.list);
    d.hand(2, c.hand);
    d.s.ha_pescato = c.drawn;
    d.pile("Kc " + name_of(d.hand_of(2).back()));
    d.rules.computer.Provo_Attacco(2, 2);
    EXPECT_EQ(d.table_text(2), c.after);
    EXPECT_EQ(d.hand_text(2), c.left);
  }
}

// What is shown when the pile is taken for a lay-off, and when a card of the hand goes.
TEST(LayOff, IsShownAndHeard) {
  Deal d;
  d.table(4, "3h 4h 5h | 9s 9d 9c");
  d.hand(2, "9h 6h");
  d.pile("Kc 6h");
  d.rules.computer.Provo_Attacco(2, 4);
  EXPECT_EQ(d.log, (Log{"pile Kc", "ridisegno_dorsi 2", "calo_carte 4", "beep", "ridisegno_dorsi 2",
                        "calo_carte 4", "beep"}));
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
    d.rules.computer.Provo_Attacco(2, 4);
    EXPECT_EQ(d.s.n_calate[4], 29);
    EXPECT_EQ(d.s.ha_pescato, room);
    EXPECT_EQ(d.hand_text(2), room ? "2s 4s 6s" : "2s 4s 6s Ks");
    EXPECT_EQ(d.pile_text(), room ? "Kc" : "Kc Ks");
  }
}

}  // namespace
}  // namespace tombrello::test
