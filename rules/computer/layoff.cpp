#include "computer/computer.h"

namespace tombrello {

struct Computer::Target {
  int seat;       // that adds
  int owner;      // of the list
  int first = 1;  // positions of the meld's first and last card
  int last = 1;
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
  const auto& list = s_.calate[owner];
  Target target{seat, owner};
  while (target.first < s_.n_calate[owner]) {
    target.last = target.first;
    while (list[target.last + 1] != kSentinel) ++target.last;
    const bool scala = melds_.is_scala(owner, target.last);
    const int slot = scala ? slot_for_scala(target) : slot_for_same_rank(target);
    if (slot != kNoSlot) {
      // A lay-off needs two more positions for a moment.
      if (s_.n_calate[owner] > kListPositions - 2) return;
      lay_off(target, slot);
    }
    target.first = target.last + 2;
  }
}

// Ranks of the hand that go on an end of the scala. On its own list, with four cards or more, a
// seat gives up a card only if nothing in its hand could still be built upon it.
unsigned Computer::ranks_to_add(const Target& target, int suit) const {
  const Slice hand = slice(target.seat, suit);
  if (hand.empty()) return 0;
  const auto& list = s_.calate[target.owner];
  const int first = ValCarta(list[target.first]);
  const int last = ValCarta(list[target.last]);
  const bool hold_back = target.owner == target.seat && s_.n_mano[target.seat] >= kCardsToHoldBack;
  unsigned ranks = 0;
  for (const int rank : {first == 1 ? kRanks : first - 1, last == kRanks ? 1 : last + 1}) {
    if (!hand.holds(rank) || (hold_back && !is_lonely(hand, rank))) continue;
    ranks |= 1U << static_cast<unsigned>(rank - 1);
  }
  return ranks;
}

int Computer::slot_for_scala(const Target& target) const {
  const int suit = Seme(s_.calate[target.owner][target.last]);
  const Slice ranks(ranks_to_add(target, suit));
  if (ranks.empty()) return kNoSlot;
  const auto& mano = s_.mano[target.seat];
  int k = 1;
  while (Seme(mano[k]) != suit || !ranks.holds(ValCarta(mano[k]))) ++k;
  return k;
}

int Computer::slot_for_same_rank(const Target& target) const {
  const auto& list = s_.calate[target.owner];
  const int last = target.last;
  if (last - target.first + 1 == 4) return kNoSlot;
  const int suit = missing_suit(Seme(list[last]), Seme(list[last - 1]), Seme(list[last - 2]));
  // A scala that closed the circle after K♦ K♠ A♠ ends in two suits and reads as a tris.
  if (suit < 1 || suit > kSuits) return kNoSlot;
  const int rank = ValCarta(list[last]);
  if (!slice(target.seat, suit).holds(rank)) return kNoSlot;
  return first_slot_with(target.seat, (suit - 1) * kRanks + rank);
}

// The last slot holds a copy of the pile's top card as long as the seat hasn't drawn: choosing
// it takes the pile, and that is the draw of the turn.
void Computer::lay_off(Target& target, int slot) {
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
  s_.pos_attacco = static_cast<std::int16_t>(target.last);
  const bool scala = melds_.is_scala(owner, target.last);
  if (scala) {
    melds_.attacco_scala(owner);
  } else {
    melds_.attacco_poker(owner);
  }
  ++target.last;
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
