#include <utility>

#include "melds/melds.h"

namespace tombrello {

void Melds::ord_crescente_calata(int seat) {
  for (const Meld meld : melds_of(s_, seat)) order_meld(seat, meld);
}

namespace {

// Stable: cards of equal rank are never exchanged.
void bubble_sort(MeldList& calata_lavoro, int count) {
  bool swapped = true;
  while (swapped) {
    swapped = false;
    for (int e = 1; e < count; ++e) {
      if (ValCarta(calata_lavoro[e + 1]) < ValCarta(calata_lavoro[e])) {
        std::swap(calata_lavoro[e], calata_lavoro[e + 1]);
        swapped = true;
      }
    }
  }
}

// Slots up to the first place where a rank isn't one above the rank before it.
int length_before_break(const MeldList& calata_lavoro, int count) {
  int e = 1;
  while (e < count && ValCarta(calata_lavoro[e + 1]) - ValCarta(calata_lavoro[e]) == 1) ++e;
  return e;
}

}  // namespace

// Sorted by rank; then what lies behind the first break goes in front of the rest, so that a
// scala through the Ace follows the circle.
void Melds::order_meld(int seat, Meld meld) {
  auto& list = s_.calate[seat];
  const int first = meld.first;
  const int count = meld.cards();
  MeldList calata_lavoro{};
  for (int e = 1; e <= count; ++e) calata_lavoro[e] = list[first + e - 1];
  bubble_sort(calata_lavoro, count);
  const int head = length_before_break(calata_lavoro, count);
  const int tail = count - head;
  for (int e = 1; e <= tail; ++e) list[first + e - 1] = calata_lavoro[head + e];
  for (int e = 1; e <= head; ++e) list[first + tail + e - 1] = calata_lavoro[e];
}

}  // namespace tombrello
