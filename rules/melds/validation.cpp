#include "melds/melds.h"

namespace tombrello {

void Melds::controllo_calata(int seat, float x) {
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
  if (!is_scala(seat, s_.pos_attacco)) {
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
  void start_meld() { semi_calata_.fill('_'); }

  bool accepts(int left, int right) {
    if (Seme(left) == Seme(right)) return follows(ValCarta(left), ValCarta(right));
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
  PairTest test;
  for (int p = 2;; ++p) {
    if (list[p] == kSentinel) {
      p += 2;
      if (p > s_.n_calate[seat]) return true;
      test.start_meld();
    }
    if (!test.accepts(list[p - 1], list[p])) return false;
  }
}

// Looks at every sentinel but the last, from left to right, and never goes back to one.
void Melds::join_neighbours(int seat) {
  for (int b = 1; b < s_.n_calate[seat]; ++b) {
    if (s_.calate[seat][b] == kSentinel && joins_at(seat, b)) remove_sentinel(seat, b);
  }
}

bool Melds::joins_at(int seat, int sentinel) const {
  const auto& list = s_.calate[seat];
  auto rank = [&](int position) { return ValCarta(list[position]); };
  const int before = sentinel - 1;
  const int after = sentinel + 1;
  if (rank(before) == rank(before - 1) || rank(after) == rank(after + 1)) return false;
  if (Seme(list[before]) != Seme(list[after])) return false;
  int last = after;
  while (list[last + 1] != kSentinel) ++last;
  return follows(rank(before), rank(after)) ||
         follows(rank(last), rank(first_of_meld(seat, before)));
}

void Melds::remove_sentinel(int seat, int sentinel) {
  auto& list = s_.calate[seat];
  for (int k = sentinel; k < s_.n_calate[seat]; ++k) list[k] = list[k + 1];
  --s_.n_calate[seat];
}

}  // namespace tombrello
