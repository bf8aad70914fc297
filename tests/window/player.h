#pragma once

#include <vector>

#include "cards/state.h"
#include "desktop_session.h"

namespace tombrello {

/// Clock readings of which is known what they bring.
inline constexpr int kTie = 1;          ///< in the draw for dealer
inline constexpr int kSeat1Deals = 3;   ///< so that seat 2 opens
inline constexpr int kSeat4Deals = 12;  ///< so that seat 1 opens: nothing moves before
// The first hand ends soon, or it reshuffles, or the match ends soon, where seat 1 throws away what
// it draws from the stock.
inline constexpr int kShortHand = 230;
inline constexpr int kReshuffle = 97;
inline constexpr int kShortMatch = 2862;

bool hand_is_over(const View& view);

/// Plays seat 1 by presses.
class PlayingSession : public DesktopSession {
 protected:
  /// Up to so many cards of the draw; fewer where it is over before.
  void draw_for_dealer(int cards, Quick quick = {});
  void turn_up(int first, int last);
  void begin(Quick quick);  ///< up to the end of the deal; the draw for dealer has no tie
  void draw();              ///< from the stock
  void press_slot(int slot, int button);
  void select(const std::vector<int>& slots);
  /// Turn by turn, until that holds in one of them.
  void play_until(const Condition& there, bool sensibly = false);
  void play_hand(bool sensibly = false) { play_until(hand_is_over, sensibly); }
  /// With keys alone: Tab to a place, Enter there.
  void play_match_by_keys();

 private:
  bool lay_meld();
};

}  // namespace tombrello
