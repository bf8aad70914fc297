#include "pictures/faces.h"
#include "pictures/outline.h"
#include "pictures/pictures.h"

namespace tombrello::art {

// Few shapes, and large: it has to read at sixteen pixels.
Drawing draw_icon(int pixels) {
  constexpr Rgba kNavy{24, 44, 112, 255};
  constexpr Rgba kWhite{255, 255, 255, 255};
  Drawing icon{64, 64, {}};
  Paint felt;
  felt.kind = Paint::Kind::radial;
  felt.from = {28, 20};
  felt.radius = 52;
  felt.stops = {{0, {24, 150, 44, 255}}, {1, {0, 88, 8, 255}}};
  fill(icon, rounded_box(0.5F, 0.5F, 63.5F, 63.5F, 13), felt);
  const Affine behind = shift(pixels < 24 ? 28.0F : 25.5F, 33.5F) * turning(-15);
  const float rim = pixels < 24 ? 0.0F : 3.0F;  // it would only blur
  inked(icon, moved(rounded_box(-18, -25, 18, 25, 5), behind), kNavy, rim, kWhite);
  const Affine before = shift(37.5F, 32) * turning(7);
  fill(icon, moved(rounded_box(-20.5F, -27.5F, 20.5F, 27.5F, 6.5F), before), {60, 54, 44, 255});
  fill(icon, moved(rounded_box(-19, -26, 19, 26, 5), before), kPaper);
  fill(icon, moved(suit_outline(Suit::hearts, {0, 0.5F}, 34), before), suit_colour(Suit::hearts));
  return icon;
}

}  // namespace tombrello::art
