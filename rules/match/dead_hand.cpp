#include "match/dead_hand.h"

#include "melds/melds.h"

namespace tombrello {
namespace {

// A hand keeps its size from turn to turn. With more cards than these a seat can lay down a new
// meld one day: a computer seat looks for one with four, and the person makes one of two and the
// card drawn.
constexpr BySeat<int> kTooFewToMeld{0, 1, 3, 3, 3};

PresenceString cards_in_play(const State& s) {
  PresenceString in_play;
  for (int seat = 1; seat <= kSeats; ++seat) {
    for (int k = 1; k <= s.n_mano[seat]; ++k) in_play.mark(s.mano[seat][k]);
  }
  for (int k = 0; k < s.n_pozzo; ++k) in_play.mark(s.pozzo[k]);
  for (int k = s.tallone; k <= kCards; ++k) in_play.mark(s.mazzo[k]);
  return in_play;
}

bool can_grow(const MeldList& list, Meld meld, const PresenceString& in_play) {
  const int last = list[meld.last];
  if (is_scala(list, meld)) return !(open_ends(list, meld) & in_play.slice(Seme(last))).empty();
  if (meld.cards() == kPokerCards) return false;
  const int suit = missing_suit(Seme(last), Seme(list[meld.last - 1]), Seme(list[meld.last - 2]));
  return 1 <= suit && suit <= kSuits && in_play.slice(suit).holds(ValCarta(last));
}

}  // namespace

bool nobody_can_go_out(const State& state) {
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (state.n_mano[seat] > kTooFewToMeld[seat]) return false;
  }
  const PresenceString in_play = cards_in_play(state);
  for (int seat = 1; seat <= kSeats; ++seat) {
    for (const Meld meld : melds_of(state, seat)) {
      if (can_grow(state.calate[seat], meld, in_play)) return false;
    }
  }
  return true;
}

}  // namespace tombrello
