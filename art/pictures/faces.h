#pragma once

#include "pictures/suits.h"
#include "seam/drawing.h"

namespace tombrello::art {

/// Size of a face in the units of its drawing, told in pixels.
inline constexpr float kCardWidth = 96;
inline constexpr float kCardHeight = 153;

/// The thin line around a card that keeps it apart from the one below.
inline constexpr float kEdgeWidth = 1.2F;
inline constexpr Rgba kPaper{255, 253, 247, 255};

/// The white card with its edge, as every face and back begins.
Drawing blank_card(float height);

/// The large ornate suit of an Ace.
void add_ace(Drawing& face, Suit suit);

/// A face with indices in its four corners; rank 1 (Ace) to 13 (King).
Drawing draw_face(Suit suit, int rank);

/// The two figures of a court card, double-ended; rank 11 to 13. Stays clear of the indices.
void add_court(Drawing& face, Suit suit, int rank);

/// The first (0) and second (1) pack's back.
Drawing draw_back(int pack);

/// The opening picture.
Drawing draw_opening();

}  // namespace tombrello::art
