#include <algorithm>
#include <array>

#include "melds/meld_range.h"
#include "shell/pointer.h"

namespace tombrello {

Pointer::Meaning Pointer::meaning(Button button, float x, float y) const {
  return button == Button::right ? right_press(x, y) : left_press(x, y);
}

// A code is carried out only where seat 1's turn waits for one.
bool Pointer::waits_for_press() const {
  return s_.phase == Phase::hand && s_.di_turno == 1 && s_.azione == kNoAction;
}

Pointer::Meaning Pointer::right_press(float x, float y) const {
  if (!waits_for_press() || !s_.ha_pescato || s_.n_mano[1] == 1 || !is_on_fan(x, y)) return {};
  return {Act::select, card_at(x)};
}

Pointer::Meaning Pointer::left_press(float x, float y) const {
  if (names_.is_open() && NamesDialog::confirm_button().holds(x, y)) {
    return {Act::confirm_names, NamesDialog::confirm_button()};
  }
  if (s_.azione == kDealerDraw && g_.dealer_deck().holds(x, y)) {
    return {Act::draw_for_dealer, g_.dealer_deck()};
  }
  if (!waits_for_press()) return {};
  for (const int side : {1, 3}) {
    if (g_.band_for_pointer(side).holds(x, y)) return press_on_side(side, x);
  }
  if (s_.ha_pescato) {
    return is_on_fan(x, y) ? Meaning{Act::discard, card_at(x)} : Meaning();
  }
  if (g_.pile().holds(x, y)) return {Act::draw_from_pile, g_.pile()};
  if (g_.stock().holds(x, y)) return {Act::draw_from_stock, g_.stock()};
  return {};
}

// Nothing where the press would be refused by its count, or means no meld.
Pointer::Meaning Pointer::press_on_side(int side, float x) const {
  const int count = count_selected();
  if (count >= 3 && s_.n_calate[side] + count < kListPositions) {
    return {Act::lay, g_.band_for_pointer(side)};
  }
  if (count != 1 || s_.n_calate[side] == 0) return {};
  const Place meld = meld_for(side, x);
  return meld == Place() ? Meaning() : Meaning{Act::add, meld};
}

// As the judge of melds will see the list, with the card proposed at its end.
Place Pointer::meld_for(int side, float x) const {
  auto list = s_.calate[side];
  const int n = s_.n_calate[side];
  if (n + 2 > kListPositions) return {};
  list[static_cast<std::size_t>(n) + 1] = 1;
  list[static_cast<std::size_t>(n) + 2] = kSentinel;
  const int last = g_.click_strip_at(list, n + 2, x).last_card;
  if (last == 0) return {};
  Place meld = g_.strip_card(side, meld_up_to(list, last).first);
  meld.right = g_.strip_card(side, last).right;
  return meld;
}

Place Pointer::card_at(float x) const {
  const int slot = g_.slot_at(x, s_.n_mano[1]);
  return g_.hand_card_seen(slot, s_.n_mano[1], s_.mano[1][slot] > kSelected);
}

int Pointer::count_selected() const {
  const auto& hand = s_.mano[1];
  return static_cast<int>(
      std::count_if(hand.begin(), hand.end(), [](int card) { return card > kSelected; }));
}

}  // namespace tombrello
