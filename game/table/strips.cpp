#include "table/painted_table.h"

namespace tombrello {

// Boxes and long strips reach into one another. What a box would take from a strip stays, and
// strips go on lying over one another as they did.
void PaintedTable::erase_under_strips(const Place& place, int but_of_seat) {
  surface_.filled_box_under(area_of(place), kFelt, [&](const PictureItem& item) {
    return is_strip_card(item, but_of_seat);
  });
}

bool PaintedTable::is_strip_card(const PictureItem& item, int but_of_seat) const {
  if (item.picture.set != PictureSet::carta && item.picture.set != PictureSet::cartao) return false;
  for (int seat = 1; seat <= kSeats; ++seat) {
    for (int k = 1; seat != but_of_seat && k <= s_.n_calate[seat]; ++k) {
      if (item.area == area_of(g_.strip_card(seat, k))) return true;
    }
  }
  return false;
}

void PaintedTable::calo_carte(int seat) {
  erase_under_strips(g_.strip(seat), seat);
  paint_strip(seat);
}

// A sentinel paints nothing but keeps its place, so that a step more separates two melds.
void PaintedTable::paint_strip(int seat) {
  for (int k = 1; k <= s_.n_calate[seat]; ++k) {
    const int entry = s_.calate[seat][k];
    if (entry == kSentinel) continue;
    if (seat == 1 || seat == 3) {
      paint_upright({PictureSet::carta, first_pack_twin(entry)}, g_.strip_card(seat, k));
    } else {
      paint_half_turned({PictureSet::cartao, first_pack_twin(entry)}, g_.strip_card(seat, k));
    }
  }
}

}  // namespace tombrello
