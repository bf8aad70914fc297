#pragma once

#include <functional>
#include <vector>

#include "cards/state.h"
#include "desktop_session.h"

namespace tombrello {

/// What a clock brings: the deck of the draw for dealer and that of the first hand.
struct Fortune {
  std::vector<int> draw;  ///< slots 1.. at 1..
  std::vector<int> deck;
  int dealer = 0;  ///< 0 for a tie in the first pass
  /// Seat 1's thirteen cards, in the order of the deal.
  std::vector<int> hand() const;
};

/// The first clock from 1 on whose fortune pleases.
unsigned long find_clock(const std::function<bool(const Fortune&)>& pleases);

/// A clock whose first hand is over soonest if seat 1 draws from the stock and throws the card
/// away again, tried headless.
unsigned long clock_of_short_hand();

/// A clock whose first hand, played so, reshuffles soonest.
unsigned long clock_of_reshuffle();

/// As for the short hand, for a whole match.
unsigned long clock_of_short_match();

/// Slots of cards of a hand that make a meld: a run, else cards of a rank. None if there is none.
std::vector<int> find_meld(const std::vector<int>& hand);
/// Slots of four or more cards in a run that doesn't wrap around, lowest first; or none.
std::vector<int> find_long_run(const std::vector<int>& hand);

/// Plays seat 1 by presses.
class PlayingSession : public DesktopSession {
 protected:
  static constexpr float kPile = 370;
  static constexpr float kStock = 430;

  /// Presses the deck for cards of the draw until `index` would pass `last`, or a box shows.
  void turn_up(int first, int last);
  void begin(Quick quick);  ///< up to the end of the deal; the draw for dealer has no tie
  void wait_for_turn();     ///< or for the end of the hand
  bool hand_is_over() const;
  void draw(float x);  ///< from `kPile` or `kStock`
  void press_slot(int slot, int button);
  void select(const std::vector<int>& slots);
  /// Presses on the own side's band at `x`, and waits until no card is selected any more.
  void lay(float x = 300);
  void discard(int slot);
  void play_hand(bool sensibly);
};

}  // namespace tombrello
