#include "shell/pointer.h"

namespace tombrello {
namespace {

constexpr float kPromptX = 40;

// A press exactly on a border belongs to no zone.
bool between(float value, float low, float high) {
  return low < value && value < high;
}

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
    surface.set_text_position(kPromptX, prompt_y());
    surface.print("PESCARE");
    return;
  }
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
      names_.is_on_confirm_button(x, y)) {
    names_.confirm();
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
    }
    return;
  }
  press_before_draw(x, y);
}

void Pointer::press_on_dealer_deck(float x, float y) {
  const float half_card = m_.larghezza_carta / 2;
  if (between(x, m_.mezza_larghezza - half_card, m_.mezza_larghezza + half_card) &&
      is_in_table_band(y)) {
    s_.carta_scelta = static_cast<std::uint8_t>(s_.mazzo[s_.indice_estrazione]);
  }
}

void Pointer::press_before_draw(float x, float y) {
  if (is_in_table_band(y)) {
    window_.surface().filled_box(kPromptX, prompt_y(), kPromptX + 100, prompt_y() + 20, kFelt);
    if (between(x, m_.mezza_larghezza - m_.larghezza_carta, m_.mezza_larghezza)) {
      s_.azione = kDrawPile;
      return;
    }
    if (between(x, m_.mezza_larghezza, m_.mezza_larghezza + m_.larghezza_carta)) {
      s_.azione = kDrawStock;
      return;
    }
  }
  press_on_melds(x, y);
}

// After the draw only the up arrow leads here; before it the looser bands of a press do, but
// then nothing can be selected yet.
void Pointer::press_on_melds(float x, float y) {
  if (s_.azione == kDealerDraw) return;
  s_.x_click = x;
  if (y > own_band_top()) s_.azione = kLayOwnSide;
  if (is_in_partner_band(y)) s_.azione = kLayPartnerSide;
}

void Pointer::Form_MouseMove(float x, float y) {
  window_.set_pointer(PointerShape::arrow);
  if (s_.di_turno != 1) return;
  const float left = m_.striscia_x();
  const float right = left + 13 * m_.passo_carta() + (26.0F / 36.0F) * m_.larghezza_carta;
  if (!between(x, left, right)) return;
  if (between(y, own_band_top(), own_band_top() + m_.altezza_carta) || is_in_partner_band(y)) {
    window_.set_pointer(PointerShape::up_arrow);
  }
}

bool Pointer::is_on_fan(float x, float y) const {
  const float right = m_.ventaglio_x() + static_cast<float>(s_.n_mano[1]) * m_.passo_carta();
  return between(x, m_.ventaglio_x(), right) &&
         between(y, m_.riga_mano(), 2 * m_.mezza_altezza - 20);
}

bool Pointer::is_in_table_band(float y) const {
  return between(y, m_.tavolo_y(), m_.mezza_altezza + m_.altezza_carta / 2);
}

bool Pointer::is_in_partner_band(float y) const {
  return between(y, m_.altezza_carta + 50, 2 * m_.altezza_carta + 50);
}

}  // namespace tombrello
