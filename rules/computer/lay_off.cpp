#include "computer/lay_off.h"

#include <cassert>
#include <utility>

namespace tombrello {

struct LayOff::Target {
  int seat;   // that adds
  int owner;  // of the list
  Meld meld;
};

namespace {

constexpr int kNoSlot = 0;
constexpr int kCardsToHoldBack = 4;

// The hand holds none of the close neighbours of this card.
bool is_lonely(Slice hand, int rank) {
  if (rank == 1) return hand.lacks(2, 3);
  if (rank == kRanks) return hand.lacks(11, 12);
  return !hand.holds(rank - 1) && !hand.holds(rank + 1);
}

}  // namespace

void LayOff::Provo_Attacco(int seat, int owner) {
  assert(hands_.presenze_agree(seat));
  for (const Meld meld : melds_of(s_, owner)) {
    const Target target{seat, owner, meld};
    const bool scala = is_scala(s_.calate[owner], meld);
    const int slot = scala ? slot_for_scala(target) : slot_for_same_rank(target);
    if (slot == kNoSlot) continue;
    // A lay-off needs two more positions for a moment.
    if (s_.n_calate[owner] > kListPositions - 2) return;
    lay(target, slot);
  }
}

// Ranks of the hand that go on an end of the scala. On its own list, with four cards or more, a
// seat gives up a card only if nothing in its hand could still be built upon it.
Slice LayOff::ranks_to_add(const Target& target, int suit) const {
  const Slice hand = s_.presenze[target.seat].slice(suit);
  Slice ranks = hand & open_ends(s_.calate[target.owner], target.meld);
  if (target.owner != target.seat || s_.n_mano[target.seat] < kCardsToHoldBack) return ranks;
  for (Slice left = ranks; !left.empty(); left = left.without(left.lowest())) {
    if (!is_lonely(hand, left.lowest())) ranks = ranks.without(left.lowest());
  }
  return ranks;
}

int LayOff::slot_for_scala(const Target& target) const {
  const int suit = Seme(s_.calate[target.owner][target.meld.last]);
  const Slice ranks = ranks_to_add(target, suit);
  if (ranks.empty()) return kNoSlot;
  const auto& mano = s_.mano[target.seat];
  for (int k = 1; k <= s_.n_mano[target.seat]; ++k) {
    if (Seme(mano[k]) == suit && ranks.holds(ValCarta(mano[k]))) return k;
  }
  return kNoSlot;
}

int LayOff::slot_for_same_rank(const Target& target) const {
  if (target.meld.cards() == kPokerCards) return kNoSlot;
  const auto& list = s_.calate[target.owner];
  const int last = target.meld.last;
  const int suit = missing_suit(Seme(list[last]), Seme(list[last - 1]), Seme(list[last - 2]));
  // A scala that closed the circle after K♦ K♠ A♠ ends in two suits and reads as a tris.
  if (suit < 1 || suit > kSuits) return kNoSlot;
  const int code = card_of(suit, ValCarta(list[last]));
  return s_.presenze[target.seat].holds(code) ? hands_.first_slot_with(target.seat, code) : kNoSlot;
}

void LayOff::lay(const Target& target, int slot) {
  const int seat = target.seat;
  if (slot == s_.n_mano[seat] && !s_.ha_pescato) take_pile(seat);
  out_.table.ridisegno_dorsi(seat);
  const std::int16_t card = std::exchange(s_.mano[seat][slot], std::int16_t{0});
  add_to_meld(target, card);
  hands_.tidy(seat);
  out_.events.added(seat, target.owner, card);
  out_.table.calo_carte(target.owner);
  out_.sound.beep();
}

// The real card takes the slot of its copy.
void LayOff::take_pile(int seat) {
  --s_.n_mano[seat];
  s_.holds_copy = false;
  deck_.pesco_carta(seat, kFromPile);
  s_.ha_pescato = true;
}

void LayOff::add_to_meld(const Target& target, std::int16_t card) {
  const int owner = target.owner;
  auto& list = s_.calate[owner];
  const bool scala = is_scala(list, target.meld);
  list[++s_.n_calate[owner]] = card;
  list[++s_.n_calate[owner]] = kSentinel;
  s_.pos_attacco = static_cast<std::int16_t>(target.meld.last);
  if (scala) {
    melds_.attacco_scala(owner);
    melds_.ord_crescente_calata(owner);
  } else {
    melds_.attacco_poker(owner);
  }
}

}  // namespace tombrello
