#include "melds/melds.h"

#include <cassert>

namespace tombrello {

void Melds::controllo_calata(int seat, float x) {
  assert(seat == 1 || seat == 3);
  assert(meld_up_to(s_.calate[seat], s_.n_calate[seat] - 1).cards() == s_.n_selezionate);
  s_.calata_ok = false;
  if (s_.n_selezionate == 1) {
    if (!find_target(seat, x) || !add_single_card(seat)) return;
  }
  ord_crescente_calata(seat);
  if (!all_valid(seat)) return;
  s_.calata_ok = true;
  join_neighbours(seat);
}

bool Melds::find_target(int seat, float x) {
  const auto strip = g_.click_strip_at(s_.calate[seat], s_.n_calate[seat], x);
  if (strip.last_card == 0) return false;
  s_.pos_attacco = static_cast<std::int16_t>(strip.last_card);
  return true;
}

// Answers whether the whole list is to be judged afterwards.
bool Melds::add_single_card(int seat) {
  const auto& list = s_.calate[seat];
  if (!is_scala(list, meld_up_to(list, s_.pos_attacco))) {
    attacco_poker(seat);
    return false;
  }
  if (Seme(list[s_.pos_attacco]) != Seme(list[s_.n_calate[seat] - 1])) return false;
  attacco_scala(seat);
  if (!s_.calata_ok) return false;
  ord_crescente_calata(seat);
  return true;
}

namespace {

// Judges neighbours of one meld; remembers the suits of a same-rank meld.
class PairTest {
 public:
  bool accepts(int left, int right) {
    if (Seme(left) == Seme(right)) return ValCarta(right) == rank_after(ValCarta(left));
    if (ValCarta(left) != ValCarta(right)) return false;
    mark(left) = '*';
    return mark(right) != '*';
  }

 private:
  char& mark(int card) { return semi_calata_[static_cast<std::size_t>(Seme(card) - 1)]; }

  std::array<char, kSuits> semi_calata_{'_', '_', '_', '_'};
};

}  // namespace

bool Melds::all_valid(int seat) const {
  const auto& list = s_.calate[seat];
  for (const Meld meld : melds_of(s_, seat)) {
    PairTest test;
    for (int p = meld.first + 1; p <= meld.last; ++p) {
      if (!test.accepts(list[p - 1], list[p])) return false;
    }
  }
  return true;
}

// Looks at every sentinel but the last, from left to right, and never goes back to one: a meld
// just joined is held against the next with its cards as they lie.
void Melds::join_neighbours(int seat) {
  const auto& list = s_.calate[seat];
  Meld before = meld_from(list, 1);
  while (before.sentinel() < s_.n_calate[seat]) {
    const Meld after = meld_from(list, before.sentinel() + 1);
    if (meet(seat, before, after)) {
      remove_sentinel(seat, before.sentinel());
      before.last = after.last - 1;
    } else {
      before = after;
    }
  }
}

bool Melds::meet(int seat, Meld before, Meld after) const {
  const auto& list = s_.calate[seat];
  auto rank = [&](int position) { return ValCarta(list[position]); };
  if (rank(before.last) == rank(before.last - 1)) return false;
  if (rank(after.first) == rank(after.first + 1)) return false;
  if (Seme(list[before.last]) != Seme(list[after.first])) return false;
  return rank(after.first) == rank_after(rank(before.last)) ||
         rank(before.first) == rank_after(rank(after.last));
}

void Melds::remove_sentinel(int seat, int sentinel) {
  auto& list = s_.calate[seat];
  for (int k = sentinel; k < s_.n_calate[seat]; ++k) list[k] = list[k + 1];
  --s_.n_calate[seat];
}

}  // namespace tombrello
