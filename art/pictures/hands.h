#pragma once

#include "pictures/heads.h"

namespace tombrello::art {

/// Where a hand is laid: what it holds passes upright through the origin; the wrist leaves to the
/// lower right, or to the lower left for a negative `side`.
Affine hand_place(float x, float y, float turn, float side);

/// Each hand in two parts, with what it holds painted between them: the palm behind it, the
/// fingers in front. They follow the figure's `at`.

/// A fist around a shaft.
void add_fist(Figure& figure, const Look& look);
void add_fist_fingers(Figure& figure, const Look& look);
/// Thumb and forefinger on a stem; the other fingers spread, or hidden.
void add_spread_fingers(Figure& figure, const Look& look);
void add_pinch(Figure& figure, const Look& look);
void add_pinch_fingers(Figure& figure, const Look& look);
/// A hollow hand, its fingers up before what lies in it; the wrist leaves downward.
void add_cradle(Figure& figure, const Look& look);
void add_cradle_fingers(Figure& figure, const Look& look);

/// A cuff around the wrist of a fist or a pinch, and around that of a cradle.
void add_cuff(Figure& figure, Rgba colour);
void add_cradle_cuff(Figure& figure, Rgba colour);

}  // namespace tombrello::art
