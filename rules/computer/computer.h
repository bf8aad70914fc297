#pragma once

#include "cards/deck.h"
#include "cards/hands.h"
#include "cards/outside.h"
#include "cards/state.h"
#include "computer/discard.h"
#include "computer/lay_off.h"
#include "computer/meld_decision.h"

namespace tombrello {

/// Plays the turns of seats 2, 3 and 4. A seat weighs, in this order: a new meld, with the top
/// of the pile or the next stock card; additions to its own and its partner's melds, with the
/// top of the pile at hand; a draw from the stock; a discard.
class Computer {
 public:
  Computer(State& state, Deck& deck, Hands& hands, MeldDecision& meld, LayOff& lay_off,
           Discard& discard, Outside outside)
      : s_(state),
        deck_(deck),
        hands_(hands),
        meld_(meld),
        lay_off_(lay_off),
        discard_(discard),
        out_(outside) {}

  /// One whole turn of `di_turno`, 2..4. Pile and stock hold a card each, and `presenze` agrees
  /// with the hand, as it does again when the turn is over.
  void Gioco2();

 private:
  enum class Step {
    try_pile,    ///< a copy of the pile's top card joins the hand
    add_to_own,  ///< additions to the seat's own melds
    add_to_partners,
    discard_if_drawn,
    draw_instead,  ///< the copy goes, and the draw comes from the stock
    discard,
    end,
    over
  };

  Step first_step();
  Step run(Step step);
  void try_top_of_pile(int seat);
  void draw_instead(int seat);
  void discard(int seat);
  void end_turn(int seat);

  State& s_;
  Deck& deck_;
  Hands& hands_;
  MeldDecision& meld_;
  LayOff& lay_off_;
  Discard& discard_;
  Outside out_;
};

}  // namespace tombrello
