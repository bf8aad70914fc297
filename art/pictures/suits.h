#pragma once

#include "seam/drawing.h"

namespace tombrello::art {

/// In the order of the card code.
enum class Suit : int { hearts, diamonds, clubs, spades };

/// Two reds and two darks that differ in lightness too, for eyes that don't part the hues.
Rgba suit_colour(Suit suit);

/// The suit's outline, its middle at `centre`; `size` is the height. Fills by winding.
Path suit_outline(Suit suit, Point centre, float size);

}  // namespace tombrello::art
