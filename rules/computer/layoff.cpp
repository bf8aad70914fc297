#include "computer/computer.h"

namespace tombrello {

struct Computer::Target {
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

void Computer::Provo_Attacco(int seat, int owner) {
  for (const Meld meld : melds_of(s_, owner)) {
    const Target target{seat, owner, meld};
    const bool scala = is_scala(s_.calate[owner], meld);
    const int slot = scala ? slot_for_scala(target) : slot_for_same_rank(target);
    if (slot == kNoSlot) continue;
    // A lay-off needs two more positions for a moment.
    if (s_.n_calate[owner] > kListPositions - 2) return;
    lay_off(target, slot);
  }
}

// Ranks of the hand that go on an end of the scala. On its own list, with four cards or more, a
// seat gives up a card only if nothing in its hand could still be built upon it.
Slice Computer::ranks_to_add(const Target& target, int suit) const {
  const Slice hand = slice(target.seat, suit);
  Slice ranks = hand & open_ends(s_.calate[target.owner], target.meld);
  if (target.owner != target.seat || s_.n_mano[target.seat] < kCardsToHoldBack) return ranks;
  for (int rank = 1; rank <= kRanks; ++rank) {
    if (ranks.holds(rank) && !is_lonely(hand, rank)) ranks = ranks.without(rank);
  }
  return ranks;
}

int Computer::slot_for_scala(const Target& target) const {
  const int suit = Seme(s_.calate[target.owner][target.meld.last]);
  const Slice ranks = ranks_to_add(target, suit);
  if (ranks.empty()) return kNoSlot;
  const auto& mano = s_.mano[target.seat];
  int k = 1;
  while (Seme(mano[k]) != suit || !ranks.holds(ValCarta(mano[k]))) ++k;
  return k;
}

int Computer::slot_for_same_rank(const Target& target) const {
  const auto& list = s_.calate[target.owner];
  const int last = target.meld.last;
  if (target.meld.cards() == kPokerCards) return kNoSlot;
  const int suit = missing_suit(Seme(list[last]), Seme(list[last - 1]), Seme(list[last - 2]));
  // A scala that closed the circle after K♦ K♠ A♠ ends in two suits and reads as a tris.
  if (suit < 1 || suit > kSuits) return kNoSlot;
  const int rank = ValCarta(list[last]);
  if (!slice(target.seat, suit).holds(rank)) return kNoSlot;
  return first_slot_with(target.seat, (suit - 1) * kRanks + rank);
}

// The last slot holds a copy of the pile's top card as long as the seat hasn't drawn: choosing
// it takes the pile, and that is the draw of the turn.
void Computer::lay_off(const Target& target, int slot) {
  const int seat = target.seat;
  const int owner = target.owner;
  if (slot == s_.n_mano[seat] && !s_.ha_pescato) {
    --s_.n_mano[seat];
    s_.holds_copy = false;
    pesco_carta(seat, 1);
    s_.ha_pescato = true;
    tidy_hand(seat);
  }
  out_.table.ridisegno_dorsi(seat);
  s_.n_calate[owner] = static_cast<std::uint8_t>(s_.n_calate[owner] + 2);
  s_.calate[owner][s_.n_calate[owner] - 1] = s_.mano[seat][slot];
  s_.calate[owner][s_.n_calate[owner]] = kSentinel;
  out_.events.added(seat, owner, s_.mano[seat][slot]);
  s_.pos_attacco = static_cast<std::int16_t>(target.meld.last);
  const bool scala = is_scala(s_.calate[owner], target.meld);
  if (scala) {
    melds_.attacco_scala(owner);
  } else {
    melds_.attacco_poker(owner);
  }
  s_.mano[seat][slot] = 0;
  tidy_hand(seat);
  if (scala) melds_.ord_crescente_calata(owner);
  out_.table.calo_carte(owner);
  out_.sound.beep();
}

void Computer::tidy_hand(int seat) {
  hands_.riduco_carte(seat);
  hands_.rebuild_presenze(seat);
}

}  // namespace tombrello
