#include "pictures/faces.h"

#include <utility>
#include <vector>

#include "pictures/glyphs.h"
#include "pictures/outline.h"

namespace tombrello::art {
namespace {

constexpr Rgba kEdge{104, 98, 86, 255};

// The index fills the outer fifth of the card's width: all that a strip of melds shows.
constexpr float kIndexMiddle = 10.3F;
constexpr float kIndexTop = 6;
constexpr float kIndexHeight = 22;
constexpr float kIndexSuitMiddle = 38;
constexpr float kIndexSuitSize = 15;

// Everything that is told more than once on a face is a shape each time: small shapes paint
// faster than one that is spread over the card.
void add_index(Drawing& face, Suit suit, int rank, float middle, const Affine& turn) {
  fill(face, moved(index_outline(rank, middle, kIndexTop, kIndexHeight), turn), suit_colour(suit));
  face.shapes.back().even_odd = true;
  fill(face, moved(suit_outline(suit, {middle, kIndexSuitMiddle}, kIndexSuitSize), turn),
       suit_colour(suit));
}

void add_indices(Drawing& face, Suit suit, int rank) {
  for (const float middle : {kIndexMiddle, kCardWidth - kIndexMiddle}) {
    add_index(face, suit, rank, middle, {});
    add_index(face, suit, rank, middle, half_turn(kCardWidth, kCardHeight));
  }
}

// Places of the pips: columns -1, 0, 1 and the height from the top, in sixths of the pips' field.
struct Pip {
  float column;
  float row;
};

std::vector<Pip> pips(int rank) {
  const std::vector<Pip> corners{{-1, 0}, {1, 0}, {-1, 6}, {1, 6}};
  std::vector<Pip> all;
  if (rank >= 4) all = corners;
  if (rank == 2 || rank == 3) all = {{0, 0}, {0, 6}};
  if (rank == 3 || rank == 5 || rank == 9) all.push_back({0, 3});
  if (rank >= 6 && rank <= 8) all.insert(all.end(), {{-1, 3}, {1, 3}});
  if (rank == 7 || rank == 8) all.push_back({0, 1.5F});
  if (rank == 8) all.push_back({0, 4.5F});
  if (rank >= 9) all.insert(all.end(), {{-1, 2}, {1, 2}, {-1, 4}, {1, 4}});
  if (rank == 10) all.insert(all.end(), {{0, 1}, {0, 5}});
  return all;
}

void add_pips(Drawing& face, Suit suit, int rank) {
  const float size = rank <= 3 ? 23.0F : 20.0F;
  const float top = 24;
  const float row = (kCardHeight - 2 * top) / 6;
  for (const Pip& pip : pips(rank)) {
    const Point at{kCardWidth / 2 + pip.column * 18, top + pip.row * row};
    Path path = suit_outline(suit, at, size);
    if (pip.row > 3) path = moved(path, half_turn(2 * at.x, 2 * at.y));
    fill(face, std::move(path), suit_colour(suit));
  }
}

}  // namespace

Drawing blank_card(float height) {
  Drawing card{kCardWidth, height, {}};
  fill(card, rounded_box(0, 0, kCardWidth, height, 6.6F), kEdge);
  fill(card,
       rounded_box(kEdgeWidth, kEdgeWidth, kCardWidth - kEdgeWidth, height - kEdgeWidth, 5.4F),
       kPaper);
  return card;
}

Drawing draw_face(Suit suit, int rank) {
  Drawing face = blank_card(kCardHeight);
  if (rank == 1) {
    add_ace(face, suit);
  } else if (rank <= 10) {
    add_pips(face, suit, rank);
  } else {
    add_court(face, suit, rank);
  }
  add_indices(face, suit, rank);
  return face;
}

}  // namespace tombrello::art
