#include "shell/places.h"

#include <algorithm>
#include <array>
#include <string>

#include "melds/meld_range.h"
#include "table/painted_table.h"
#include "told/card_names.h"

namespace tombrello {
namespace {

std::string ordinal(int k) {
  static const std::array<std::string, kHandSlots + 1> kOrdinals = {
      "",       "prima",      "seconda",    "terza",       "quarta",
      "quinta", "sesta",      "settima",    "ottava",      "nona",
      "decima", "undicesima", "dodicesima", "tredicesima", "quattordicesima"};
  return kOrdinals[static_cast<std::size_t>(k)];
}

std::string cards_word(int n) {
  return std::to_string(n) + (n == 1 ? " carta" : " carte");
}

Place span(const Place& first, const Place& last) {
  return {std::min(first.left, last.left), std::min(first.top, last.top),
          std::max(first.right, last.right), std::max(first.bottom, last.bottom)};
}

}  // namespace

std::vector<Spot> Places::spots() const {
  Spots spots;
  if (s_.phase == Phase::opening) {
    add(spots, "Tombrello: fai clic per cominciare", g_.opening());
    spots.back().press = {g_.mezza_larghezza, g_.mezza_altezza};  // any press opens the game
    spots.back().told.can_press = true;
  }
  if (s_.phase == Phase::draw) add(spots, "Mazzo", g_.dealer_deck());
  if (s_.phase == Phase::count || s_.phase == Phase::match_over) add_scores(spots);
  if (s_.phase != Phase::hand) return spots;
  for (const int seat : {3, 2}) add_hand_of(spots, seat);
  for (const int seat : {2, 3}) add_melds_of(spots, seat);
  add_band(spots, 3);
  add_pile_and_stock(spots);
  add_melds_of(spots, 4);
  add_hand_of(spots, 4);
  add_melds_of(spots, 1);
  add_band(spots, 1);
  add_own_hand(spots);
  return spots;
}

void Places::add(Spots& spots, const std::string& name, const Place& place) const {
  Spot spot;
  spot.told = {name, area_of(place), false, false, false};
  spot.press = point_for(Button::left, place);
  spot.select = point_for(Button::right, place);
  spot.told.can_press = spot.press.has_value();
  spot.told.can_select = spot.select.has_value();
  spots.push_back(spot);
}

Place Places::hand_of(int seat) const {
  return span(g_.back(seat, 1), g_.back(seat, std::max(1, int{s_.n_mano[seat]})));
}

// The copy of the pile's top that a seat weighs isn't in its hand.
void Places::add_hand_of(Spots& spots, int seat) const {
  const bool copy = seat == s_.di_turno && s_.holds_copy;
  add(spots, name_of(seat) + ", " + cards_word(s_.n_mano[seat] - (copy ? 1 : 0)), hand_of(seat));
}

void Places::add_melds_of(Spots& spots, int seat) const {
  const std::string whose = seat == 1 ? "tua" : "di " + name_of(seat);
  for (const Meld meld : melds_of(s_, seat)) {
    add(spots,
        meld_name(cards_of(s_.calate[seat], meld)) + ", " + whose + ", " + cards_word(meld.cards()),
        span(g_.strip_card(seat, meld.first), g_.strip_card(seat, meld.last)));
    spots.back().on_melds = true;
  }
}

void Places::add_pile_and_stock(Spots& spots) const {
  if (s_.n_pozzo > 0) {
    const int top = s_.pozzo[static_cast<std::size_t>(s_.n_pozzo - 1)];
    add(spots, "Pozzo: " + long_name(top), g_.pile());
  }
  if (!s_.stock_empty) add(spots, "Tallone", g_.stock());
}

// A meld can be laid anywhere in the band.
void Places::add_band(Spots& spots, int side) const {
  const Place band = g_.band_for_pointer(side);
  if (!point_for(Button::left, band)) return;
  add(spots, side == 1 ? "Cala dalla tua parte" : "Cala dalla parte di " + name_of(side), band);
  spots.back().on_melds = true;
}

void Places::add_own_hand(Spots& spots) const {
  for (int k = 1; k <= s_.n_mano[1]; ++k) {
    const int entry = s_.mano[1][k];
    const bool selected = entry > kSelected;
    const Place card = g_.hand_card_seen(k, s_.n_mano[1], selected);
    add(spots,
        long_name(entry % kSelected) + ", " + ordinal(k) + " della tua mano" +
            (selected ? ", scelta" : ""),
        card);
    Spot& spot = spots.back();
    spot.own_card = k;
    spot.told.selected = selected;
  }
}

void Places::add_scores(Spots& spots) const {
  add(spots,
      "Punti: " + s_.squadre[0] + " " + std::to_string(s_.punti_totali[1]) + ", " + s_.squadre[1] +
          " " + std::to_string(s_.punti_totali[2]),
      g_.count_panel());
}

// The zones are odd and change with the size of cards: a point is looked for, from the middle of
// what is painted outward, where a press means this very place.
std::optional<PressPoint> Places::point_for(Button button, const Place& place) const {
  constexpr std::array kParts = {0.5F, 0.3F, 0.7F, 0.15F, 0.85F, 0.05F, 0.95F};
  for (const float down : kParts) {
    for (const float across : kParts) {
      const PressPoint point{place.left + across * (place.right - place.left),
                             place.top + down * (place.bottom - place.top)};
      const auto meaning = pointer_.meaning(button, point.x, point.y);
      if (meaning.act != Pointer::Act::none && meaning.place == place) return point;
    }
  }
  return std::nullopt;
}

}  // namespace tombrello
