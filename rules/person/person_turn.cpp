#include "person/person_turn.h"

namespace tombrello {

void PersonTurn::Gioco1() {
  s_.ha_pescato = false;
  do {
    wait_for_action();
  } while (!carry_out());
}

void PersonTurn::wait_for_action() {
  s_.azione = kNoAction;
  out_.table.default_pointer();
  while (s_.azione == kNoAction) out_.wait.serve_events();
}

bool PersonTurn::carry_out() {
  switch (s_.azione) {
    case kDrawPile:
      draw_from_pile();
      return false;
    case kDrawStock:
      draw_from_stock();
      return false;
    case kSelect:
      select_or_unselect();
      return false;
    case kLayOwnSide:
      return lay_on(1);
    case kLayPartnerSide:
      return lay_on(3);
    case kDiscard:
      return discard();
    default:
      return false;
  }
}

void PersonTurn::draw_from_pile() {
  if (s_.ha_pescato) return;
  out_.sound.suona();
  out_.table.card_drawn(deck_.top_of_pile());
  deck_.take_from_pile(1);
  out_.table.ridisegno_carte();
  s_.ha_pescato = true;
}

void PersonTurn::draw_from_stock() {
  if (s_.ha_pescato) return;
  out_.sound.suona();
  out_.table.card_drawn(s_.mazzo[s_.tallone]);
  deck_.take_from_stock(1);
  out_.table.ridisegno_carte();
  s_.ha_pescato = true;
}

void PersonTurn::find_slot_cliccato() {
  s_.slot_cliccato = static_cast<std::uint8_t>(g_.slot_at(s_.x_click, s_.n_mano[1]));
}

void PersonTurn::select_or_unselect() {
  find_slot_cliccato();
  auto& card = s_.mano[1][s_.slot_cliccato];
  if (card > kSelected) {
    card = static_cast<std::int16_t>(card - kSelected);
    --s_.n_selezionate;
  } else {
    card = static_cast<std::int16_t>(card + kSelected);
    ++s_.n_selezionate;
  }
  out_.table.ridisegno_carte();
}

bool PersonTurn::lay_on(int side) {
  collect_selected(side);
  if (s_.n_selezionate == 0) return false;
  if (s_.n_selezionate == 2 || (s_.n_calate[side] == 0 && s_.n_selezionate < 3)) {
    tell_refusal(s_.n_selezionate == 2 ? Refusal::two_cards : Refusal::no_meld_yet);
    out_.table.ridisegno_carte();
    return false;
  }
  if (!append_proposal(side)) {
    tell_refusal(Refusal::list_full);
    refuse();
    return false;
  }
  const int target = g_.click_strip_at(s_.calate[side], s_.n_calate[side], s_.x_click).last_card;
  melds_.controllo_calata(side, s_.x_click);
  if (s_.calata_ok) {
    accept(side);
    return s_.n_mano[1] == 0;
  }
  take_back_proposal(side);
  if (s_.n_selezionate > 1) {
    tell_refusal(Refusal::not_a_meld);
  } else {
    tell_refusal(target == 0 ? Refusal::beside_melds : Refusal::does_not_fit,
                 meld_at(side, target));
  }
  refuse();
  return false;
}

std::array<std::int16_t, kHandSlots> PersonTurn::selected_cards() const {
  std::array<std::int16_t, kHandSlots> cards{};
  for (int k = 1; k <= s_.n_selezionate; ++k) {
    cards[static_cast<std::size_t>(k - 1)] = s_.mano[1][s_.slot_selezionati[k]];
  }
  return cards;
}

Cards PersonTurn::meld_at(int side, int last) const {
  if (last == 0) return {};
  const Meld meld = meld_up_to(s_.calate[side], last);
  return Cards(s_.calate[side])
      .subspan(static_cast<std::size_t>(meld.first), static_cast<std::size_t>(meld.cards()));
}

void PersonTurn::tell_refusal(Refusal why, Cards meld) {
  const auto cards = selected_cards();
  out_.events.refused(why, Cards(cards).first(static_cast<std::size_t>(s_.n_selezionate)), meld);
}

void PersonTurn::tell_acceptance(int side) {
  const auto cards = selected_cards();
  if (s_.n_selezionate == 1) {
    out_.events.added(1, side, cards[0]);
  } else {
    out_.events.laid(1, side, Cards(cards).first(static_cast<std::size_t>(s_.n_selezionate)));
  }
}

void PersonTurn::take_back_proposal(int side) {
  for (int k = 0; k <= s_.n_selezionate; ++k) s_.calate[side][s_.n_calate[side] - k] = 0;
  s_.n_calate[side] = static_cast<std::uint8_t>(s_.n_calate[side] - s_.n_selezionate - 1);
}

// From here on no card is selected any more, whatever follows.
void PersonTurn::collect_selected(int side) {
  s_.n_selezionate = 0;
  for (int k = 1; k <= s_.n_mano[1]; ++k) {
    auto& card = s_.mano[1][k];
    if (card <= kSelected) continue;
    card = static_cast<std::int16_t>(card - kSelected);
    ++s_.n_selezionate;
    s_.slot_selezionati[s_.n_selezionate] = static_cast<std::uint8_t>(k);
    const int position = s_.n_calate[side] + s_.n_selezionate;
    if (position <= kListPositions) s_.calate[side][position] = card;
  }
}

// A list has 30 positions; a proposal that would pass them isn't made.
bool PersonTurn::append_proposal(int side) {
  const int n = s_.n_calate[side] + s_.n_selezionate + 1;
  if (n > kListPositions) return false;
  s_.n_calate[side] = static_cast<std::uint8_t>(n);
  s_.calate[side][n] = kSentinel;
  return true;
}

// The list holds what it held before; the cards drop back into the sorted fan.
void PersonTurn::refuse() {
  hands_.raggruppo_carte(1);
  s_.n_selezionate = 0;
  out_.table.ridisegno_carte();
}

void PersonTurn::accept(int side) {
  melds_.ord_crescente_calata(side);
  tell_acceptance(side);
  for (int k = 1; k <= s_.n_selezionate; ++k) s_.mano[1][s_.slot_selezionati[k]] = 0;
  hands_.raggruppo_carte(1);
  s_.n_mano[1] = static_cast<std::uint8_t>(s_.n_mano[1] - s_.n_selezionate);
  out_.table.ridisegno_carte();
  out_.table.calo_carte(side);
  if (side == 1) {
    out_.sound.suona();
  } else {
    out_.sound.beep();
    out_.wait.ritardo(0.2F);
  }
}

bool PersonTurn::discard() {
  if (!s_.ha_pescato) return false;
  if (lower_selected()) {
    out_.events.refused(Refusal::lowered_first, {}, {});
    out_.table.ridisegno_carte();
    return false;
  }
  find_slot_cliccato();
  auto& card = s_.mano[1][s_.slot_cliccato];
  out_.table.pile_shows(card);
  deck_.add_to_pile(card);
  out_.events.discarded(1, card);
  card = 0;
  hands_.raggruppo_carte(1);
  --s_.n_mano[1];
  out_.table.ridisegno_carte();
  out_.sound.suona();
  out_.wait.ritardo(0.1F);
  deck_.reshuffle_when_full();
  return true;
}

bool PersonTurn::lower_selected() {
  bool any = false;
  for (int k = 1; k <= s_.n_mano[1]; ++k) {
    auto& card = s_.mano[1][k];
    if (card <= kSelected) continue;
    card = static_cast<std::int16_t>(card - kSelected);
    any = true;
  }
  return any;
}

}  // namespace tombrello
