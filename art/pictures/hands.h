#pragma once

#include "pictures/heads.h"

namespace tombrello::art {

enum class Hand {
  fist,    ///< around a shaft
  pinch,   ///< thumb and forefinger on a stem
  spread,  ///< the same, the other fingers spread behind it
  cradle,  ///< hollow, under what lies in it
};

/// Where a hand is laid: what it holds passes upright through the origin; the wrist leaves to the
/// lower right, or to the lower left for a negative `side`, and downward from a cradle.
Affine hand_place(float x, float y, float turn, float side);

/// A hand in its cuff around what `add_held` paints: the palm behind it, the fingers in front.
void add_hand(Figure& figure, Hand hand, const Affine& place, const Look& look, Rgba cuff,
              void (*add_held)(Figure&));

}  // namespace tombrello::art
