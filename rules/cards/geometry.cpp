#include "cards/geometry.h"

#include <algorithm>
#include <cassert>
#include <limits>

namespace tombrello {
namespace {

// Places that don't follow the size of a card.
constexpr float kSideBoxTop = 245;
constexpr float kSeat3OpenX = 376.7F;
constexpr float kEverywhere = std::numeric_limits<float>::infinity();

bool sits_at_a_side(int seat) {
  return seat == 2 || seat == 4;
}

}  // namespace

Geometry Geometry::at_scale(float scala_carte) {
  assert(scala_carte > 0);
  Geometry g;
  g.larghezza_carta = 60 * scala_carte;
  g.altezza_carta = 94.25F * scala_carte;
  return g;
}

Place Geometry::on_table(float x) const {
  return {x, tavolo_y(), x + larghezza_carta, mezza_altezza + altezza_carta / 2};
}

Place Geometry::pile() const {
  Place place = on_table(mezza_larghezza - larghezza_carta);
  place.right = mezza_larghezza;
  return place;
}

Place Geometry::stock() const {
  return on_table(mezza_larghezza);
}

Place Geometry::dealer_deck() const {
  Place place = on_table(mezza_larghezza - larghezza_carta / 2);
  place.right = mezza_larghezza + larghezza_carta / 2;
  return place;
}

Place Geometry::drawn_for_dealer(int seat) const {
  const float middle_x = mezza_larghezza - larghezza_carta / 2;
  const float middle_y = mezza_altezza - altezza_carta / 2;
  switch (seat) {
    case 1:
      return upright(middle_x, 2 * mezza_altezza - altezza_carta - 20);
    case 2:
      return upright(20, middle_y);
    case 3:
      return upright(middle_x, 20);
    default:
      return upright(2 * mezza_larghezza - larghezza_carta - 20, middle_y);
  }
}

Place Geometry::shuffled_pile() const {
  return upright(mezza_larghezza + 2 * larghezza_carta, tavolo_y());
}

Place Geometry::reshuffle_message() const {
  return {mezza_larghezza - 50, mezza_altezza + 90, mezza_larghezza + 100, mezza_altezza + 100};
}

Place Geometry::opening() const {
  return {mezza_larghezza - 240, mezza_altezza - 180, mezza_larghezza + 240, mezza_altezza + 180};
}

Place Geometry::count_panel() const {
  return {mezza_larghezza - 199, mezza_altezza - 130, mezza_larghezza + 199, mezza_altezza + 110};
}

Place Geometry::prompt() const {
  return {40, 2 * mezza_altezza - 100, 140, 2 * mezza_altezza - 80};
}

Place Geometry::hand_card(int k, bool raised) const {
  return upright(ventaglio_x() + fan_step(k), raised ? riga_alzata() : riga_mano());
}

Place Geometry::hand_card_seen(int k, int cards, bool raised) const {
  Place card = hand_card(k, raised);
  if (k < cards) card.right = card.left + passo_carta();
  return card;
}

Place Geometry::hand_box() const {
  return {ventaglio_x(), riga_alzata(), ventaglio_x() + 13 * passo_carta() + larghezza_carta,
          2 * mezza_altezza - 20};
}

Place Geometry::back(int seat, int k) const {
  assert(seat >= 2 && seat <= kSeats);
  if (seat == 3) return upright(ventaglio_x() + fan_step(k), 20);
  return lying(seat == 2 ? 20 : colonna_destra(), ventaglio_y() + fan_step(k));
}

Place Geometry::backs_box(int seat) const {
  assert(seat >= 2 && seat <= kSeats);
  const float bottom = 17 * passo_carta() + kSideBoxTop;
  if (seat == 2) return {0, kSideBoxTop, altezza_carta + 20, bottom};
  if (seat == 4) return {colonna_destra(), kSideBoxTop, 2 * mezza_larghezza - 20, bottom};
  return {ventaglio_x(), 19, ventaglio_x() + 13 * passo_carta() + larghezza_carta,
          altezza_carta + 20};  // to the cards' very edge
}

Place Geometry::landing(int seat) const {
  assert(seat >= 2 && seat <= kSeats);
  const float fan = 13 * passo_carta();
  if (seat == 3) return upright(fan + kSeat3OpenX, 20);
  return lying(seat == 2 ? 20 : colonna_destra(), fan + kSideBoxTop);
}

Place Geometry::open_card(int seat, int k) const {
  assert(seat >= 2 && seat <= kSeats);
  if (seat == 3) return upright(kSeat3OpenX + fan_step(k), 20);
  if (seat == 4) return lying(colonna_destra(), kSideBoxTop + fan_step(k));
  const float bottom = larghezza_carta + kSideBoxTop + fan_step(k);
  return {20, bottom - larghezza_carta, altezza_carta + 20, bottom};
}

Place Geometry::strip(int seat) const {
  const float length = 16 * passo_carta();
  if (sits_at_a_side(seat)) {
    const float right =
        seat == 2 ? 2 * altezza_carta + 50 : 2 * mezza_larghezza - altezza_carta - 50;
    return {right - altezza_carta, ventaglio_y(), right, ventaglio_y() + length};
  }
  const float top = seat == 1 ? 2 * mezza_altezza - 53 - 2 * altezza_carta : altezza_carta + 53;
  return {striscia_x(), top, striscia_x() + length, top + altezza_carta};
}

// The first card of a side strip lies wholly above the strip's start.
Place Geometry::strip_card(int seat, int k) const {
  const Place box = strip(seat);
  const float along = static_cast<float>(k - 1) * larghezza_carta / 5;
  if (!sits_at_a_side(seat)) {
    return {box.left + along, box.top, box.left + along + larghezza_carta, box.bottom};
  }
  return {box.left, box.top + along - larghezza_carta, box.right, box.top + along};
}

// `passo_carta` for each card: of the last one, which shows whole, only the left part is live.
Place Geometry::fan(int cards) const {
  return {ventaglio_x(), riga_mano(), ventaglio_x() + static_cast<float>(cards) * passo_carta(),
          2 * mezza_altezza - 20};
}

Place Geometry::band_for_press(int side) const {
  if (side == 1) {
    return {-kEverywhere, mezza_altezza + altezza_carta + 20, kEverywhere, kEverywhere};
  }
  return {-kEverywhere, altezza_carta + 50, kEverywhere, 2 * altezza_carta + 50};
}

Place Geometry::band_for_pointer(int side) const {
  Place band = band_for_press(side);
  band.left = striscia_x();
  band.right = band.left + 13 * passo_carta() + (26.0F / 36.0F) * larghezza_carta;
  if (side == 1) band.bottom = band.top + altezza_carta;
  return band;
}

// Every slot owns a strip of the same width, the last one too, although its card shows wider.
int Geometry::slot_at(float x, int cards) const {
  assert(cards >= 1);
  const int slot = static_cast<int>((x - ventaglio_x()) / passo_carta()) + 1;
  return std::clamp(slot, 1, cards);
}

// A meld of m cards owns m + 2 steps here, one more than it takes in the picture, so that the
// strips lie further right than the melds, by a step for each meld before them. What belongs to
// the proposal at the end, and three steps behind it, is the last meld's too.
Geometry::ClickStrip Geometry::click_strip_at(
    const std::array<std::int16_t, kListPositions + 1>& list, int n, float x) const {
  const float step = strip_step();
  ClickStrip strip{striscia_x(), striscia_x(), 0};
  for (int k = 1; k <= n; ++k) {
    if (list[static_cast<std::size_t>(k)] != kSentinel) {
      strip.right += step;
      continue;
    }
    strip.right += 2 * step;
    if (k == n) strip.right += 3 * step;
    if (strip.left < x && x < strip.right) {
      strip.last_card = k < n ? k - 1 : k - 3;
      return strip;
    }
    strip.left = strip.right;
  }
  return {};
}

}  // namespace tombrello
