#include "shell/pointer.h"

#include "melds/meld_range.h"

namespace tombrello {
namespace {

constexpr const char* kDrawFirst = "Prima pesca: fai clic sul Pozzo o sul Tallone";
constexpr const char* kHasDrawn = "Hai già pescato: ora cala o scarta";
constexpr const char* kLeftPart = "Dell'ultima carta risponde la parte sinistra: fai clic lì";
constexpr const char* kLowerHalf = "Per attaccare fai clic sulla metà bassa della combinazione";
constexpr const char* kOthersMeld = "Si attacca solo alle combinazioni della tua coppia";
constexpr const char* kLastCard = "L'ultima carta non si seleziona: si può solo scartare";

}  // namespace

void Pointer::Form_MouseDown(Button button, float x, float y) {
  s_.click_avvio = true;
  panels_.hide_all();
  if (button == Button::right) {
    press_right(x, y);
  } else {
    press_left(x, y);
  }
}

void Pointer::press_right(float x, float y) {
  if (!s_.ha_pescato) {
    Surface& surface = window_.surface();
    surface.set_text_position(g_.prompt().left, g_.prompt().top);
    surface.print("PESCARE");
    tell_to_draw_first();
    return;
  }
  if (is_on_fan(x, y) && s_.n_mano[1] == 1) chronicle_.remark(kLastCard);
  if (is_on_fan(x, y) && s_.n_mano[1] != 1 && s_.azione != kDealerDraw) {
    s_.x_click = x;
    s_.azione = kSelect;
  }
}

void Pointer::press_left(float x, float y) {
  if (window_.pointer() == PointerShape::up_arrow) {
    press_on_melds(x, y);
    return;
  }
  if (window_.enabled(personalize_players) && names_.is_open() &&
      NamesDialog::confirm_button().holds(x, y)) {
    names_.end(true);
    return;
  }
  if (s_.azione == kDealerDraw) {
    press_on_dealer_deck(x, y);
    return;
  }
  if (s_.di_turno > 1) return;
  if (s_.ha_pescato) {
    if (is_on_fan(x, y)) {
      s_.x_click = x;
      s_.azione = kDiscard;
    } else {
      tell_why_nothing_happens(x, y);
    }
    return;
  }
  press_before_draw(x, y);
}

void Pointer::press_on_dealer_deck(float x, float y) {
  if (!g_.dealer_deck().holds(x, y)) return;
  s_.carta_scelta = static_cast<std::uint8_t>(s_.mazzo[s_.indice_estrazione]);
}

void Pointer::press_before_draw(float x, float y) {
  if (g_.is_in_table_band(y)) {
    const Place prompt = g_.prompt();
    window_.surface().filled_box(prompt.left, prompt.top, prompt.right, prompt.bottom, kFelt);
  }
  if (g_.pile().holds(x, y)) {
    s_.azione = kDrawPile;
  } else if (g_.stock().holds(x, y)) {
    s_.azione = kDrawStock;
  } else {
    press_on_melds(x, y);
    if (is_on_fan(x, y)) tell_to_draw_first();
  }
}

// After the draw only the up arrow leads here; before it the looser bands of a press do, but
// then nothing can be selected yet.
void Pointer::press_on_melds(float x, float y) {
  if (s_.azione == kDealerDraw) return;
  s_.x_click = x;
  if (g_.band_for_press(1).holds(x, y)) s_.azione = kLayOwnSide;
  if (g_.band_for_press(3).holds(x, y)) s_.azione = kLayPartnerSide;
  if (s_.azione == kLayOwnSide || s_.azione == kLayPartnerSide) tell_to_draw_first();
}

void Pointer::tell_to_draw_first() {
  if (s_.phase == Phase::hand && s_.di_turno == 1 && !s_.ha_pescato) chronicle_.remark(kDrawFirst);
}

// Where a player may well press after the draw, and no zone is.
void Pointer::tell_why_nothing_happens(float x, float y) {
  if (s_.phase != Phase::hand || s_.azione != kNoAction) return;
  const int cards = s_.n_mano[1];
  const bool raised = s_.mano[1][cards] > kSelected;
  if (x > g_.fan(cards).right && g_.hand_card(cards, raised).holds(x, y)) {
    return chronicle_.remark(kLeftPart);
  }
  if (g_.pile().holds(x, y) || g_.stock().holds(x, y)) return chronicle_.remark(kHasDrawn);
  if (count_selected() != 1) return;
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (!is_on_strip(seat, x, y)) continue;
    if (seat % 2 == 0) return chronicle_.remark(kOthersMeld);
    const Place band = g_.band_for_pointer(seat);
    if (y < band.top && x <= band.right) chronicle_.remark(kLowerHalf);
  }
}

bool Pointer::is_on_strip(int seat, float x, float y) const {
  for (const Meld meld : melds_of(s_, seat)) {
    for (int k = meld.first; k <= meld.last; ++k) {
      if (g_.strip_card(seat, k).holds(x, y)) return true;
    }
  }
  return false;
}

void Pointer::Form_MouseMove(float x, float y) {
  const bool lays = s_.di_turno == 1 &&
                    (g_.band_for_pointer(1).holds(x, y) || g_.band_for_pointer(3).holds(x, y));
  window_.set_pointer(lays ? PointerShape::up_arrow : PointerShape::arrow);
}

}  // namespace tombrello
