#include "pictures/court_parts.h"
#include "pictures/faces.h"

namespace tombrello::art {
namespace {

using namespace court;

Figure half_of(Suit suit, int rank) {
  Figure figure;
  if (rank == 13) {
    add_king(figure, suit);
  } else if (rank == 12) {
    add_queen(figure, suit);
  } else {
    add_jack(figure, suit);
  }
  figure.at = {};
  figure.plain(suit_outline(suit, {28, 19.5F}, 13), suit_colour(suit));
  return figure;
}

// The belt that hides the seam; symmetric by itself.
void add_sash(Drawing& face, Suit suit) {
  const float slope = (kSeamRight - kSeamLeft) / (kRight - kLeft);
  const auto band = [&](float half) {
    return polygon({{kLeft, kSeamLeft - half},
                    {kRight, kSeamRight - half},
                    {kRight, kSeamRight + half},
                    {kLeft, kSeamLeft + half}});
  };
  inked(face, band(4.2F), kGold, 0.75F, kInk);
  inked(face, band(2.7F), suit_colour(suit), 0.5F, kInk);
  Path studs;
  for (int i = -3; i <= 3; ++i) {
    const float x = static_cast<float>(i) * 8;
    const Point middle{kCardWidth / 2 + x, kCardHeight / 2 + x * slope};
    join(studs, moved(polygon({{0, -1.7F}, {2.2F, 0}, {0, 1.7F}, {-2.2F, 0}}),
                      shift(middle.x, middle.y) * turning(-11)));
  }
  fill(face, studs, kGold);
}

}  // namespace

void add_court(Drawing& face, Suit suit, int rank) {
  fill(face, rounded_box(kLeft, kTop, kRight, kBottom, 1), kGround);
  const Figure figure = half_of(suit, rank);
  append(face, figure.drawing(), {});
  append(face, figure.drawing(), half_turn(kCardWidth, kCardHeight));
  add_sash(face, suit);
  line(face, rounded_box(kLeft, kTop, kRight, kBottom, 1), 1.5F, kInk);
  line(face, rounded_box(kLeft, kTop, kRight, kBottom, 1), 0.6F, kGold);
}

}  // namespace tombrello::art
