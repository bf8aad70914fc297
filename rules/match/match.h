#pragma once

#include "cards/deck.h"
#include "cards/outside.h"
#include "cards/state.h"
#include "computer/computer.h"
#include "match/dealer_draw.h"
#include "match/scoring.h"
#include "person/person_turn.h"

namespace tombrello {

/// The spine of a run: prepares the match, then repeats hands, and within a hand turns.
class Match {
 public:
  Match(State& state, Deck& deck, DealerDraw& draw, PersonTurn& person, Computer& computer,
        Scoring& scoring, Outside outside)
      : s_(state),
        deck_(deck),
        draw_(draw),
        person_(person),
        computer_(computer),
        scoring_(scoring),
        out_(outside) {}

  /// Plays the one match of a run. Never returns; it is left when a wait unwinds.
  [[noreturn]] void Main();

  /// Clears the state for a hand, and shuffles unless a replay is marked.
  void Gioco_Imposta();

  /// The parts of `Main`, in its order, for those who play hands one by one: a match is prepared,
  /// then hands are started, played turn by turn, ended, and followed by the next.
  void prepare_match();  ///< the draw for dealer too
  void start_hand();
  bool play_turn();  ///< of `di_turno`; answers whether the hand is over
  void pass_turn();
  void end_hand();       ///< needs a seat without cards
  bool is_over() const;  ///< a team stands at 1500 or more
  void next_hand();

 private:
  void wait_for_continue();

  State& s_;
  Deck& deck_;
  DealerDraw& draw_;
  PersonTurn& person_;
  Computer& computer_;
  Scoring& scoring_;
  Outside out_;
};

}  // namespace tombrello
