#include "pictures/belts.h"
#include "pictures/faces.h"
#include "pictures/figure.h"

namespace tombrello::art {
namespace {

using namespace court;

Drawing half_of(Suit suit, int rank) {
  Figure figure;
  if (rank == 13) {
    add_king(figure, suit);
  } else if (rank == 12) {
    add_queen(figure, suit);
  } else {
    add_jack(figure, suit);
  }
  return figure.drawing();
}

// The paper around the panel, over whatever of a figure reaches past the frame.
void add_margin(Drawing& face) {
  Path margin = polygon({{kLeft - 12, kTop - 4},
                         {kRight + 12, kTop - 4},
                         {kRight + 12, kBottom + 4},
                         {kLeft - 12, kBottom + 4}});
  join(margin, rounded_box(kLeft, kTop, kRight, kBottom, 1));
  fill(face, margin, kPaper);
  face.shapes.back().even_odd = true;
}

}  // namespace

void add_court(Drawing& face, Suit suit, int rank) {
  fill(face, rounded_box(kLeft, kTop, kRight, kBottom, 1), kGround);
  const Drawing half = half_of(suit, rank);
  append(face, half, {});
  append(face, half, half_turn(kCardWidth, kCardHeight));
  add_belt(face, suit);
  add_margin(face);
  line(face, rounded_box(kLeft, kTop, kRight, kBottom, 1), 1.5F, kInk);
  line(face, rounded_box(kLeft, kTop, kRight, kBottom, 1), 0.6F, kGold);
}

}  // namespace tombrello::art
