#pragma once

#include <array>
#include <cstdint>

#include "cards/state.h"

namespace tombrello {

/// A rectangle of the table, logical units. It may reach beyond the table.
struct Place {
  float left = 0;
  float top = 0;
  float right = 0;
  float bottom = 0;

  /// True for a press there. A press exactly on a border belongs to no place.
  constexpr bool holds(float x, float y) const {
    return left < x && x < right && top < y && y < bottom;
  }
  /// True if they share more than a border.
  constexpr bool meets(const Place& other) const {
    return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
  }
  constexpr bool operator==(const Place&) const = default;
};

/// Where everything lies on the table and what a press means by its place, told once for painter,
/// pointer, rules, scripts and tests. Logical units, 800 by 600, single precision; y grows
/// downward. Set once, when the table is set up.
struct Geometry {
  float mezza_larghezza = 400;
  float mezza_altezza = 300;
  float larghezza_carta = 60;
  float altezza_carta = 94.25F;
  std::int16_t passo_ventaglio = 3;  ///< a fanned card shows one part in so many

  /// `scala_carte` is above 0; 1 gives a card of 60 by 94.25.
  static Geometry at_scale(float scala_carte);

  float passo_carta() const { return larghezza_carta / static_cast<float>(passo_ventaglio); }
  float ventaglio_x() const { return mezza_larghezza - half_fan(); }
  float ventaglio_y() const { return mezza_altezza - half_fan(); }
  float riga_mano() const { return 2 * mezza_altezza - altezza_carta - 20; }
  float riga_alzata() const { return 2 * mezza_altezza - altezza_carta - 45; }
  float colonna_destra() const { return 2 * mezza_larghezza - altezza_carta - 20; }
  float tavolo_y() const { return mezza_altezza - altezza_carta / 2; }

  // The middle of the table. Pile, stock and the dealer's deck are pressed where they are painted.
  Place pile() const;
  Place stock() const;
  Place dealer_deck() const;
  Place drawn_for_dealer(int seat) const;
  Place shuffled_pile() const;  ///< the back that stands for the pile in a reshuffle
  Place reshuffle_message() const;
  Place opening() const;      ///< the opening picture
  Place count_panel() const;  ///< of the scoreboard
  Place prompt() const;       ///< "PESCARE"

  // Hands; k from 1.
  Place hand_card(int k, bool raised) const;  ///< of seat 1
  /// What is seen of it among so many, in one row: the next card covers all but a step.
  Place hand_card_seen(int k, int cards, bool raised) const;
  Place hand_box() const;                  ///< erases seat 1's hand, raised cards too
  Place back(int seat, int k) const;       ///< seats 2..4
  Place backs_box(int seat) const;         ///< erases the backs; seats 2..4
  Place landing(int seat) const;           ///< of a card drawn from the stock; seats 2..4
  Place open_card(int seat, int k) const;  ///< when the hand is over; seats 2..4

  // Strips of melds: entry k of a seat's list, as painted.
  Place strip(int seat) const;
  Place strip_card(int seat, int k) const;

  // Where a press counts; more than what is painted, or less.
  Place fan(int cards) const;  ///< of a hand of so many
  bool is_in_table_band(float y) const { return pile().top < y && y < pile().bottom; }
  Place band_for_press(int side) const;    ///< of the melds of seat 1 or 3
  Place band_for_pointer(int side) const;  ///< where the pointer turns into the up arrow

  /// The slot 1..`cards` of the fan that an x means.
  int slot_at(float x, int cards) const;
  /// The middle of the strip of the fan that is slot k's.
  float x_of_slot(int k) const {
    return ventaglio_x() + (static_cast<float>(k) - 0.5F) * passo_carta();
  }

  /// What a press on a strip of seat 1 or 3 is measured by: the range of x that belongs to one
  /// meld. It is not the painted one: each meld owns a step more than it takes in the picture.
  struct ClickStrip {
    float left = 0;
    float right = 0;
    int last_card = 0;  ///< position of the meld's last card, 0 for no meld
  };
  /// The click strip in which x falls, on a list that ends with a proposal of one card.
  ClickStrip click_strip_at(const std::array<std::int16_t, kListPositions + 1>& list, int n,
                            float x) const;
  /// Where the click strips of seats 1 and 3 begin.
  float striscia_x() const { return mezza_larghezza - 110; }

 private:
  float half_fan() const { return 7.5F / static_cast<float>(passo_ventaglio) * larghezza_carta; }
  Place upright(float x, float y) const { return {x, y, x + larghezza_carta, y + altezza_carta}; }
  Place lying(float x, float y) const { return {x, y, x + altezza_carta, y + larghezza_carta}; }
  Place on_table(float x) const;
  float fan_step(int k) const { return static_cast<float>(k - 1) * passo_carta(); }
  float strip_step() const { return larghezza_carta / 5; }
};

}  // namespace tombrello
