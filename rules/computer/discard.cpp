#include "computer/discard.h"

#include <cassert>

namespace tombrello {
namespace {

constexpr int kNone = 0;

// The widest equal margin of gaps on both sides of a card, 6 down to 1; the lowest rank among
// equals. A margin must lie within the slice.
int rank_with_widest_gaps(Slice slice) {
  const unsigned gaps = ~slice.bits() & kAllRanks;
  unsigned lonely = slice.bits();
  int rank = kNone;
  for (unsigned margin = 1; margin <= 6; ++margin) {
    lonely &= (gaps << margin) & (gaps >> margin);
    if (lonely == 0) break;
    rank = Slice(lonely).lowest();
  }
  return rank;
}

int rank_to_discard(Slice slice) {
  if (slice.holds(1) && slice.lacks(2, 4)) return 1;
  if (slice.holds(kRanks) && slice.lacks(10, 12)) return kRanks;
  return rank_with_widest_gaps(slice);
}

}  // namespace

void Discard::scarto_carta(int seat) {
  assert(s_.n_mano[seat] > 0 && hands_.presenze_agree(seat));
  int slot = slot_by_shape(seat);
  if (slot == kNone) slot = slot_of_twin(seat);
  if (slot == kNone) slot = slot_by_chance(seat);
  auto& card = s_.mano[seat][slot];
  out_.sound.suona();
  deck_.add_to_pile(card);
  out_.table.pile_shows(card);
  out_.events.discarded(seat, card);
  card = 0;
}

// The suit held with the fewest ranks, the first of equals. All thirteen ranks leave no gap, and
// such a suit is never chosen.
int Discard::suit_to_discard_from(int seat) const {
  int best_gaps = 0;
  int chosen = kNone;
  for (int suit = 1; suit <= kSuits; ++suit) {
    const Slice held = s_.presenze[seat].slice(suit);
    const int gaps = kRanks - held.count();
    if (held.empty() || gaps <= best_gaps) continue;
    best_gaps = gaps;
    chosen = suit;
  }
  return chosen;
}

int Discard::slot_by_shape(int seat) const {
  const int suit = suit_to_discard_from(seat);
  if (suit == kNone) return kNone;
  const int rank = rank_to_discard(s_.presenze[seat].slice(suit));
  if (rank == kNone) return kNone;
  return hands_.first_slot_with(seat, card_of(suit, rank));
}

// Only neighbouring slots are compared.
int Discard::slot_of_twin(int seat) const {
  const auto& mano = s_.mano[seat];
  for (int k = 1; k < s_.n_mano[seat]; ++k) {
    const int difference = mano[k] - mano[k + 1];
    if (difference == kPack || difference == -kPack) return k;
  }
  return kNone;
}

int Discard::slot_by_chance(int seat) {
  return static_cast<int>(s_.n_mano[seat] * random_.next()) + 1;
}

}  // namespace tombrello
