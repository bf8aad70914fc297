#include "table/painted_table.h"

namespace tombrello {
namespace {

bool lies_sideways(int seat) {
  return seat == 2 || seat == 4;
}

}  // namespace

Area PaintedTable::strip_area(int seat) const {
  const float length = 16 * m_.passo_carta();
  if (lies_sideways(seat)) {
    const float x0 =
        seat == 2 ? 2 * m_.altezza_carta + 50 : 2 * m_.mezza_larghezza - m_.altezza_carta - 50;
    return {x0 - m_.altezza_carta, m_.ventaglio_y(), x0, m_.ventaglio_y() + length};
  }
  const float y0 =
      seat == 1 ? 2 * m_.mezza_altezza - 53 - 2 * m_.altezza_carta : m_.altezza_carta + 53;
  return {m_.striscia_x(), y0, m_.striscia_x() + length, y0 + m_.altezza_carta};
}

Area PaintedTable::strip_card_area(int seat, int k) const {
  const Area strip = strip_area(seat);
  const float along = static_cast<float>(k - 1) * m_.larghezza_carta / 5;
  if (!lies_sideways(seat)) {
    return {strip.left + along, strip.top, strip.left + along + m_.larghezza_carta, strip.bottom};
  }
  // The first card of a side strip lies wholly above the strip's start.
  return {strip.left, strip.top + along - m_.larghezza_carta, strip.right, strip.top + along};
}

void PaintedTable::calo_carte(int seat) {
  const Area box = strip_area(seat);
  erase(box.left, box.top, box.right, box.bottom);
  // Boxes and long strips reach into one another: what this one took from another comes back.
  for (int other = 1; other <= kSeats; ++other) {
    if (other != seat) paint_strip_cards_in(other, box);
  }
  paint_strip(seat);
}

void PaintedTable::paint_strip_cards_in(int seat, const Area& box) {
  for (int k = 1; k <= s_.n_calate[seat]; ++k) {
    if (strip_card_area(seat, k).meets(box)) {
      paint_strip(seat);
      return;
    }
  }
}

// A sentinel paints nothing but keeps its place, so that a step more separates two melds.
void PaintedTable::paint_strip(int seat) {
  for (int k = 1; k <= s_.n_calate[seat]; ++k) {
    const int entry = s_.calate[seat][k];
    if (entry == kSentinel) continue;
    const Area area = strip_card_area(seat, k);
    if (lies_sideways(seat)) {
      paint_half_turned({PictureSet::cartao, first_pack_twin(entry)}, area.right, area.bottom);
    } else {
      paint_upright({PictureSet::carta, first_pack_twin(entry)}, area.left, area.top);
    }
  }
}

}  // namespace tombrello
