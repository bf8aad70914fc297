#pragma once

#include "cards/deck.h"
#include "cards/geometry.h"
#include "cards/outside.h"
#include "cards/state.h"

namespace tombrello {

/// The draw for dealer: the person turns up a card for each seat; the highest rank deals.
class DealerDraw {
 public:
  DealerDraw(State& state, const Geometry& geometry, Deck& deck, Outside outside)
      : s_(state), g_(geometry), deck_(deck), out_(outside) {}

  /// Runs on the deck just shuffled; leaves the dealer in `cartaro` and the seat after it in
  /// `di_turno`.
  void Scelta_Cartaro();
  /// Sorts `valori_estratti` and leaves the seat of the highest in `cartaro`, 0 for a tie of the
  /// two highest.
  void ord_massimo();

 private:
  void find_places();
  void lay_out_screen();
  void draw_all_seats();
  void draw_card();
  bool wait_for_card();
  void announce_tie();

  State& s_;
  const Geometry& g_;
  Deck& deck_;
  Outside out_;
};

}  // namespace tombrello
