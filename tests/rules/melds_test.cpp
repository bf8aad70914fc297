#include <gtest/gtest.h>

#include <random>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

/// Lays a proposal behind the list of a seat and has it judged, as the person's turn does; a
/// refused one is taken out again.
bool propose(Deal& d, int seat, const std::vector<int>& proposal, float x = 0) {
  auto& list = d.s.calate[seat];
  auto& n = d.s.n_calate[seat];
  for (const int code : proposal) list[++n] = static_cast<std::int16_t>(code);
  list[++n] = kSentinel;
  d.s.n_selezionate = static_cast<std::int16_t>(proposal.size());
  d.rules.melds.controllo_calata(seat, x);
  if (d.s.calata_ok) {
    d.rules.melds.ord_crescente_calata(seat);
  } else {
    n = static_cast<std::uint8_t>(n - proposal.size() - 1);
  }
  return d.s.calata_ok;
}

// An unbroken arc of the circle of ranks: each card but one has the next rank beside it. The
// closed circle of thirteen has no such end.
bool is_arc(unsigned ranks) {
  int ends = 0;
  for (int r = 1; r <= 13; ++r) {
    ends += (ranks >> r & 1U) != 0 && (ranks >> (r % 13 + 1) & 1U) == 0;
  }
  const int count = __builtin_popcount(ranks);
  return count == 13 || (count >= 3 && ends == 1);
}

// A scala may begin anywhere on the circle of ranks, whatever the order of the cards.
TEST(NewMeld, OfOneSuitIsAnArcOfTheCircle) {
  std::mt19937 engine(1);
  for (unsigned ranks = 0; ranks < 1U << 14; ranks += 2) {
    std::vector<int> proposal;
    for (int r = 1; r <= 13; ++r) {
      if ((ranks >> r & 1U) != 0) proposal.push_back(26 + r + (engine() % 2 == 0 ? 52 : 0));
    }
    if (proposal.size() < 3) continue;
    std::shuffle(proposal.begin(), proposal.end(), engine);
    Deal d;
    ASSERT_EQ(propose(d, 1, proposal), is_arc(ranks)) << names(proposal);
    for (std::size_t k = 1; d.s.calata_ok && k < proposal.size(); ++k) {
      const auto& list = d.s.calate[1];
      ASSERT_EQ(ValCarta(list[k + 1]), ValCarta(list[k]) % 13 + 1) << d.table_text(1);
    }
  }
}

// Of one rank three or four suits, of one suit an arc; neighbours alone are looked at, so that a
// meld that passes from the King to the Ace may change suits between two cards of a rank.
TEST(NewMeld, ToldCases) {
  const struct {
    const char* list;
    const char* proposal;
    const char* after;  // the list; unchanged if refused
    bool accepted;
  } kCases[] = {
      {"", "7h 7s' 7c", "7c 7h 7s'", true},
      {"", "7h 7d 7c 7s", "7c 7s 7h 7d", true},
      {"", "7h 7h' 7s", "", false},
      {"", "7h 7d 7c 7s 7d'", "", false},
      {"", "7h 7d 8c", "", false},
      {"", "5h 6h 7d", "", false},
      {"", "5h 6d 7h", "", false},
      {"", "Kd Ad 2s", "", false},
      // The Tombrellone, from the rank that is there twice round to itself
      {"", "8h 9h Kh 7h 6h 5h Jh 4h 3h 7h' 2h Ah Qh 10h",
       "7h 8h 9h 10h Jh Qh Kh Ah 2h 3h 4h 5h 6h 7h'", true},
      {"", "3h 4h 4h' 5h", "", false},
      {"", "As Kd Ks", "Kd Ks As", true},
      {"", "As Ks Kd", "", false},
      {"", "As Jd Js Qs Ks", "Jd Js Qs Ks As", true},
      {"7h 7d 7c", "7h' 7d' 7c'", "7c 7h 7d | 7c' 7h' 7d'", true},  // two turns each
      {"7h 7d 7c", "3h 4h 6h", "7d 7c 7h", false},                  // a refusal turns them too
      {"5h 3h 4h | Ah Kh 2h | 7s 7d 7c 7h", "9s Js Ks", "3h 4h 5h | Kh Ah 2h | 7d 7c 7h 7s", false},
      {"Ah Ah' 2h 2h' 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh", "9s Js Ks",
       "Ah' 2h 2h' 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh Ah", false},
      {"3h 4h 5h", "3h' 4h' 5h'", "3h 4h 5h | 3h' 4h' 5h'", true},
      // Joins
      {"3h 4h 5h", "6h 7h 8h", "3h 4h 5h 6h 7h 8h", true},
      {"7h 8h 9h", "4h 5h 6h", "4h 5h 6h 7h 8h 9h", true},
      {"Ah 2h 3h 4h 5h 6h", "7h 8h 9h 10h Jh Qh Kh", "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh",
       true},
      {"Jh Qh Kh", "Ah 2h 3h", "Jh Qh Kh Ah 2h 3h", true},
      {"3h 4h 5h", "6d 7d 8d", "3h 4h 5h | 6d 7d 8d", true},
      {"3h 4h 5h | Kh Kd Kc", "6h 7h 8h", "3h 4h 5h | Kc Kh Kd | 6h 7h 8h", true},
      {"3h 4h 5h | 9h 10h Jh", "6h 7h 8h", "3h 4h 5h | 6h 7h 8h 9h 10h Jh", true},
      // The sentinel that closes a joined meld is tested with the cards as they lie
      {"3h 4h 5h | 6h 7h 8h", "9h 10h Jh", "3h 4h 5h 6h 7h 8h 9h 10h Jh", true},
      // Melds of one rank never join, also where a card beside the border would go on
      {"Kh Kd Kc", "Ad Ah Ac", "Kc Kh Kd | Ac Ad Ah", true},
      {"3h 4h 5h", "6d 6h 6c", "3h 4h 5h | 6c 6d 6h", true},
      {"5h 5d 5c", "6h 7h 8h", "5c 5h 5d | 6h 7h 8h", true},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(testing::Message() << c.list << " + " << c.proposal);
    Deal d;
    d.table(3, c.list);
    EXPECT_EQ(propose(d, 3, cards(c.proposal)), c.accepted);
    EXPECT_EQ(d.table_text(3), c.after);
  }
}

// A card goes on either end of a scala of its suit, round the circle too, and a tris takes the
// suit it lacks, from either pack. What it brings to meet joins.
TEST(Adding, ToldCases) {
  const std::string a_k = "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh";
  const struct {
    std::string list;
    const char* card;
    std::string after;  // the list; empty if the card is refused
    float x = 291;      // in the strip of the first meld
  } kCases[] = {
      {"3h 4h 5h", "6h'", "3h 4h 5h 6h'"},
      {"3h 4h 5h", "2h", "2h 3h 4h 5h"},
      {"Jh Qh Kh", "Ah", "Jh Qh Kh Ah"},
      {"Ah 2h 3h", "Kh", "Kh Ah 2h 3h"},
      {a_k, "Ah'", "Ah' 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh Ah"},
      {a_k, "Kh'", "Kh " + a_k + "'"},
      {"3h 4h 5h", "7h", ""},
      {"3h 4h 5h", "Ah", ""},
      {"3h 4h 5h", "4h'", ""},
      {"3h 4h 5h", "6d", ""},
      {"7h 7d 7c | 3h 4h 5h", "7s'", "7d 7s' 7c 7h | 3h 4h 5h"},
      {"7h 7d 7c | 3h 4h 5h", "7h'", ""},
      {"7h 7d 7c | 3h 4h 5h", "8s", ""},
      {"7h 7d 7c 7s | 3h 4h 5h", "7s'", ""},
      // A meld's kind is read from its last two cards alone
      {"Kd Ks As", "2s", "Kd Ks As 2s"},
      // A card in the gap between two scalas, laid on the first and on the second
      {"3h 4h 5h | 7h 8h 9h", "6h", "3h 4h 5h 6h 7h 8h 9h"},
      {"3h 4h 5h | 7h 8h 9h", "6h", "3h 4h 5h 6h 7h 8h 9h", 365},
  };
  for (const auto& c : kCases) {
    for (const int seat : {1, 3}) {
      SCOPED_TRACE(testing::Message() << c.list << " + " << c.card);
      Deal d;
      d.table(seat, c.list);
      EXPECT_EQ(propose(d, seat, cards(c.card), c.x), !c.after.empty());
      EXPECT_EQ(d.table_text(seat), c.after.empty() ? c.list : c.after);
    }
  }
}

// Nothing limits a scala, but past fourteen cards its walk fails: the card stays, the join is
// left out, and the side takes no new meld any more.
TEST(Adding, PastFourteenCardsStaysAndStopsNewMelds) {
  Deal d;
  d.table(1, "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh Ah' | 3d 4d 5d");
  ASSERT_TRUE(propose(d, 1, cards("2h'"), 291));
  EXPECT_EQ(d.s.n_calate[1], 20);
  EXPECT_FALSE(propose(d, 1, cards("6d 7d 8d")));
  EXPECT_TRUE(propose(d, 1, cards("6d"), 291 + 17 * 12)) << "an addition is still possible";
}

// A click names the meld in whose strip it falls: m cards own m + 2 steps; the proposal's own
// strip counts for the last meld; a border belongs to nobody.
TEST(Strips, AClickFindsTheMeldInWhoseStripItFalls) {
  const struct {
    float from;
    float to;
    const char* fits;  // of three cards, that which the meld under the click takes
  } kCases[] = {{-1e30F, 290, ""}, {290.5F, 339.5F, "6h"}, {340, 340, ""},  {340.5F, 389, "Jh"},
                {390, 390, ""},    {391, 449, "Jh"},       {450, 1e30F, ""}};
  for (const auto& c : kCases) {
    for (const float x : {c.from, c.to}) {
      for (const std::string added : {"6h", "Jh", "2d"}) {
        SCOPED_TRACE(added + " at " + number(x));
        Deal d;
        d.m.larghezza_carta = 50;
        d.table(1, "3h 4h 5h | 8h 9h 10h");
        EXPECT_EQ(propose(d, 1, cards(added), x), added == c.fits);
      }
    }
  }
}

// A meld such as K♦ K♠ A♠ may grow until its last suits differ; nobody may trip over it.
TEST(OddMeld, GrownRoundTheCircleHarmsNobody) {
  for (const char* king : {"Kd", "Kc", "Kh"}) {
    SCOPED_TRACE(king);
    Deal d;
    d.table(1, std::string(king) + " Ks As 2s 3s 4s 5s 6s 7s 8s 9s 10s Js");
    ASSERT_TRUE(propose(d, 1, cards("Qs"), 291));
    ASSERT_FALSE(is_scala(d.s.calate[1], meld_from(d.s.calate[1], 1))) << d.table_text(1);
    const auto before = d.table_text(1);
    d.s.di_turno = 3;
    d.s.ha_pescato = true;
    d.hand(2, "Kh Kd Kc Ks");
    d.hand(3, "5h 9d Jc 2d 8c");
    d.rules.lay_off.Provo_Attacco(3, 1);
    EXPECT_EQ(d.table_text(1), before);
    EXPECT_EQ(d.hand_text(3), "5h 9d Jc 2d 8c");
  }
}

}  // namespace
}  // namespace tombrello::test
