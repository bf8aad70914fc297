#pragma once

#include <vector>

#include "cards/state.h"
#include "desktop_session.h"

namespace tombrello {

/// Clock readings of which is known what they bring.
inline constexpr unsigned long kTie = 1;          ///< in the draw for dealer
inline constexpr unsigned long kSeat1Deals = 3;   ///< so that seat 2 opens
inline constexpr unsigned long kSeat4Deals = 12;  ///< so that seat 1 opens: nothing moves before
inline constexpr unsigned long kRunInHand = 135;  ///< seat 1 opens, with 2♠ 3♠ 4♠ 5♠
// The first hand ends soon, or it reshuffles, or the match ends soon, where seat 1 throws away what
// it draws from the stock.
inline constexpr unsigned long kShortHand = 230;
inline constexpr unsigned long kReshuffle = 97;
inline constexpr unsigned long kShortMatch = 2862;

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
