#include "melds/melds.h"

#include <cassert>

namespace tombrello {

// The card to be added is the last meld of the list, closed, and the target an earlier one.
bool Melds::stands_alone_behind(int seat, int target) const {
  const auto& list = s_.calate[seat];
  const int end = s_.n_calate[seat];
  return 1 <= target && target < end - 2 && list[target] != kSentinel &&
         list[target + 1] == kSentinel && list[end - 2] == kSentinel &&
         list[end - 1] != kSentinel && list[end] == kSentinel;
}

void Melds::attacco_poker(int seat) {
  const auto& list = s_.calate[seat];
  const int last = s_.pos_attacco;
  assert(stands_alone_behind(seat, last) && !is_scala(list, meld_up_to(list, last)));
  s_.carta_scelta = static_cast<std::uint8_t>(list[s_.n_calate[seat] - 1]);
  if (meld_up_to(list, last).cards() == kPokerCards) return;
  if (ValCarta(s_.carta_scelta) != ValCarta(list[last])) {
    s_.calata_ok = false;
    return;
  }
  const int lacking = missing_suit(Seme(list[last]), Seme(list[last - 1]), Seme(list[last - 2]));
  if (Seme(s_.carta_scelta) != lacking) return;
  insert_before_last(seat);
}

void Melds::attacco_scala(int seat) {
  const auto& list = s_.calate[seat];
  assert(stands_alone_behind(seat, s_.pos_attacco) &&
         is_scala(list, meld_up_to(list, s_.pos_attacco)) &&
         Seme(list[s_.pos_attacco]) == Seme(list[s_.n_calate[seat] - 1]));
  s_.carta_scelta = static_cast<std::uint8_t>(list[s_.n_calate[seat] - 1]);
  s_.calata_ok = false;
  const Slice fitting = open_ends(list, meld_up_to(list, s_.pos_attacco));
  if (fitting.holds(ValCarta(s_.carta_scelta))) insert_before_last(seat);
}

// The card lands in front of the target's last card; what follows moves up by one.
void Melds::insert_before_last(int seat) {
  auto& list = s_.calate[seat];
  list[s_.n_calate[seat]] = 0;
  --s_.n_calate[seat];
  for (int j = s_.n_calate[seat]; j > s_.pos_attacco; --j) list[j] = list[j - 1];
  list[s_.pos_attacco] = s_.carta_scelta;
  s_.calata_ok = true;
}

}  // namespace tombrello
