#include <gtest/gtest.h>

#include <functional>

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
bool propose(Deal& d, int seat, const std::string& proposal, float x = 0) {
  return propose(d, seat, cards(proposal), x);
}

bool follows_on_circle(int rank, int next) {
  return next == rank % 13 + 1;
}

void expect_chain(const Deal& d, int seat, int count) {
  for (int k = 1; k < count; ++k) {
    const auto& list = d.s.calate[seat];
    ASSERT_TRUE(follows_on_circle(ValCarta(list[k]), ValCarta(list[k + 1]))) << d.table_text(seat);
  }
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
TEST(NewMeld, OfOneSuitIsAcceptedExactlyIfItIsAnArcOfTheCircle) {
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
    if (d.s.calata_ok) expect_chain(d, 1, static_cast<int>(proposal.size()));
  }
}

// The Tombrellone: thirteen ranks, any of them twice, lying from that rank round to itself.
TEST(NewMeld, OfFourteenClosesTheCircleAtAnyRank) {
  std::mt19937 engine(2);
  for (int twice = 1; twice <= 13; ++twice) {
    std::vector<int> proposal{52 + twice};
    for (int r = 1; r <= 13; ++r) proposal.push_back(r);
    std::shuffle(proposal.begin(), proposal.end(), engine);
    Deal d;
    ASSERT_TRUE(propose(d, 3, proposal)) << twice;
    EXPECT_EQ(ValCarta(d.s.calate[3][1]), twice);
    EXPECT_EQ(ValCarta(d.s.calate[3][14]), twice);
    EXPECT_EQ(d.s.n_calate[3], 15);
  }
}

// What a meld is, from its definition: an arc of one suit, or one rank in distinct suits.
bool is_meld(const std::vector<int>& proposal) {
  unsigned ranks = 0;
  unsigned suits = 0;
  unsigned twins = 0;
  for (const int code : proposal) {
    ranks |= 1U << ValCarta(code);
    suits |= 1U << Seme(code);
  }
  for (std::size_t i = 0; i < proposal.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) twins += (proposal[i] - proposal[j]) % 52 == 0;
  }
  if (twins > 0) return false;
  if (__builtin_popcount(ranks) == 1) return true;
  return __builtin_popcount(suits) == 1 && is_arc(ranks);
}

void for_each_choice(int count, int lowest, std::vector<int>& chosen,
                     const std::function<void(const std::vector<int>&)>& visit, int twice) {
  if (count == 0) return visit(chosen);
  for (int code = lowest; code <= 52; ++code) {
    for (int copies = 1; copies <= std::min(twice, count); ++copies) {
      for (int k = 0; k < copies; ++k) chosen.push_back(code + 52 * k);
      for_each_choice(count - copies, code + 1, chosen, visit, twice);
      chosen.resize(chosen.size() - static_cast<std::size_t>(copies));
    }
  }
}

// The one oddity: neighbours alone are looked at, so that a meld that passes from the King to
// the Ace may change suits between two cards of a rank, as K♦ K♠ A♠ does.
bool may_be_odd(const std::vector<int>& proposal) {
  const auto holds = [&](int rank) {
    return std::any_of(proposal.begin(), proposal.end(),
                       [=](int c) { return ValCarta(c) == rank; });
  };
  return holds(1) && holds(13);
}

// Every choice of three, four and five cards, the small ones with twins too, in random order.
TEST(NewMeld, EveryChoiceOfThreeToFiveCardsIsJudgedAsDefined) {
  std::mt19937 engine(3);
  Deal d;
  int accepted = 0;
  int odd = 0;
  const auto visit = [&](const std::vector<int>& choice) {
    auto proposal = choice;
    std::shuffle(proposal.begin(), proposal.end(), engine);
    const bool meld = is_meld(proposal);
    d.s.n_calate[1] = 0;
    const bool accepts = propose(d, 1, proposal);
    if (accepts != meld && !(accepts && may_be_odd(proposal))) ADD_FAILURE() << names(proposal);
    accepted += accepts;
    odd += accepts && !meld;
  };
  std::vector<int> chosen;
  for_each_choice(3, 1, chosen, visit, 2);
  for_each_choice(4, 1, chosen, visit, 2);
  for_each_choice(5, 1, chosen, visit, 1);
  // 13 arcs a suit and length; four tris and a poker a rank; what is left are the odd ones.
  EXPECT_EQ(accepted - odd, 3 * 4 * 13 + 13 * 5);
  EXPECT_EQ(odd, 75) << "in this order; in another the judge lets others through";
}

TEST(NewMeld, ToldCases) {
  const struct {
    const char* list;
    const char* proposal;
    const char* after;  // the list; unchanged if refused
    bool accepted;
  } kCases[] = {
      {"", "7h 7h' 7s", "", false},
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
    EXPECT_EQ(propose(d, 3, c.proposal), c.accepted);
    EXPECT_EQ(d.table_text(3), c.after);
  }
}

// Each of the 104 cards on each scala: it goes on either open end, to stand in its place, the
// closed circle of thirteen and the Tombrellone included.
TEST(Adding, OneCardGoesOnEitherEndOfAScala) {
  for (int start = 1; start <= 13; ++start) {
    for (int length = 3; length <= (start == 1 ? 14 : 12); ++length) {
      std::vector<int> arc;
      for (int k = 0; k < length; ++k) arc.push_back((start - 1 + k) % 13 + 1 + 52 * (k / 13));
      for (int added = 1; added <= kCards; ++added) {
        Deal d;
        d.table(3, names(arc));
        const bool fits =
            Seme(added) == 1 && (follows_on_circle(ValCarta(arc.back()), ValCarta(added)) ||
                                 follows_on_circle(ValCarta(added), start));
        ASSERT_EQ(propose(d, 3, std::vector<int>{added}, 291), fits)
            << names(arc) << " + " << name_of(added);
        ASSERT_EQ(d.s.n_calate[3], length + 1 + fits);
        if (length < 14) expect_chain(d, 3, length + fits);
      }
    }
  }
}

// Each of the 104 cards on each tris and poker: only the missing card fits, from either pack.
TEST(Adding, OneCardMakesAPokerOfATris) {
  for (int rank = 1; rank <= 13; ++rank) {
    for (int missing = 0; missing <= 4; ++missing) {
      std::vector<int> meld;
      for (int suit = 1; suit <= 4; ++suit) {
        if (suit != missing) meld.push_back((suit - 1) * 13 + rank);
      }
      for (int added = 1; added <= kCards; ++added) {
        Deal d;
        d.table(1, names(meld) + " | 3h 4h 5h");
        const bool fits = Seme(added) == missing && ValCarta(added) == rank;
        ASSERT_EQ(propose(d, 1, std::vector<int>{added}, 291), fits)
            << d.table_text(1) << name_of(added);
        ASSERT_EQ(d.s.n_calate[1], meld.size() + 5 + fits);
      }
    }
  }
}

// A meld's kind is read from its last two cards alone.
TEST(Adding, ATurnThroughTheKingReadsAsAScala) {
  Deal d;
  d.table(1, "Kd Ks As");
  EXPECT_TRUE(propose(d, 1, "2s", 291));
  EXPECT_EQ(d.table_text(1), "Kd Ks As 2s");
}

// A card in the gap between two scalas brings them to meet, on whichever it was laid.
TEST(Adding, ACardInTheGapJoinsTwoScalas) {
  for (const float x : {295.F, 365.F}) {
    Deal d;
    d.table(1, "3h 4h 5h | 7h 8h 9h");
    ASSERT_TRUE(propose(d, 1, "6h", x));
    EXPECT_EQ(d.table_text(1), "3h 4h 5h 6h 7h 8h 9h");
  }
}

// Nothing limits a scala, but past fourteen cards its walk fails: the card stays, the join is
// left out, and the side takes no new meld any more.
TEST(Adding, PastFourteenCardsStaysAndStopsNewMelds) {
  Deal d;
  d.table(1, "Ah 2h 3h 4h 5h 6h 7h 8h 9h 10h Jh Qh Kh Ah' | 3d 4d 5d");
  ASSERT_TRUE(propose(d, 1, "2h'", 291));
  EXPECT_EQ(d.s.n_calate[1], 20);
  EXPECT_FALSE(propose(d, 1, "6d 7d 8d"));
  EXPECT_TRUE(propose(d, 1, "6d", 291 + 17 * 12)) << "an addition is still possible";
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
        EXPECT_EQ(propose(d, 1, added, x), added == c.fits);
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
    ASSERT_TRUE(propose(d, 1, "Qs", 291));
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
