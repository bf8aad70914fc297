#include "table/pictures/faces.h"
#include "table/pictures/outline.h"

namespace tombrello {

void add_court(Drawing& face, Suit suit, int rank) {
  const Rgba ink{24, 26, 48, 255};
  const Rgba gold{240, 184, 52, 255};
  Drawing half{kCardWidth, kCardHeight, {}};
  inked(half, outline("M20 76.5 L20 66 C24 58 34 54 48 52 C62 54 72 58 76 66 L76 76.5 Z"),
        suit_colour(suit), 0.8F, ink);
  inked(half, ellipse({48, 37}, 9, 12), {250, 220, 190, 255}, 0.8F, ink);
  if (rank > 11) {
    inked(half, outline("M37 28 L36 14 L42 21 L48 12 L54 21 L60 14 L59 28 Z"), gold, 0.8F, ink);
  } else {
    inked(half, outline("M36 28 C36 14 60 14 60 28 Z"), suit_colour(suit), 0.8F, ink);
  }
  fill(half, circle({44.5F, 36}, 1.2F), ink);
  fill(half, circle({51.5F, 36}, 1.2F), ink);
  line(half, outline("M44 43 Q48 45.5 52 43"), 1, {180, 40, 40, 255});
  if (rank == 13) fill(half, outline("M40 42 Q48 64 56 42 Q48 47 40 42 Z"), {90, 60, 40, 255});
  fill(half, suit_outline(suit, {27, 22}, 11), suit_colour(suit));
  append(face, half, {});
  append(face, half, half_turn(kCardWidth, kCardHeight));
  line(face, rounded_box(20, 11, 76, 142, 1), 0.9F, ink);
}

}  // namespace tombrello
