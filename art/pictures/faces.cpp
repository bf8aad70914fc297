#include "pictures/faces.h"

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

void add_indices(Drawing& face, Suit suit, int rank) {
  Path ranks;
  Path suits;
  for (const float middle : {kIndexMiddle, kCardWidth - kIndexMiddle}) {
    join(ranks, index_outline(rank, middle, kIndexTop, kIndexHeight));
    join(suits, suit_outline(suit, {middle, kIndexSuitMiddle}, kIndexSuitSize));
  }
  const Affine turn = half_turn(kCardWidth, kCardHeight);
  join(ranks, moved(ranks, turn));
  join(suits, moved(suits, turn));
  fill(face, ranks, suit_colour(suit));
  face.shapes.back().even_odd = true;
  fill(face, suits, suit_colour(suit));
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
  const float top = 26;
  const float row = (kCardHeight - 2 * top) / 6;
  Path all;
  for (const Pip& pip : pips(rank)) {
    const Point at{kCardWidth / 2 + pip.column * 16, top + pip.row * row};
    Path path = suit_outline(suit, at, size);
    if (pip.row > 3) path = moved(path, half_turn(2 * at.x, 2 * at.y));
    join(all, path);
  }
  fill(face, all, suit_colour(suit));
}

// Scrollwork cut into the Ace of spades, right half, in the units of a spade 100 high.
constexpr const char* kScrolls =
    "M0 22 C10 25 28 26 31 14 C33 5 23 2 21 9 C20 14 26 15 27 11 "
    "M0 12 C9 10 21 5 20 -6 C18 -15 8 -12 10 -5 C12 -1 16 -4 14 -7 "
    "M0 -6 C4 -10 8 -16 7 -23 C5 -28 1 -25 2 -21";
constexpr const char* kBuds =
    "M0 -36 Q4 -30 0 -25 Q-4 -30 0 -36 Z M0 -4 Q4.6 2 0 8 Q-4.6 2 0 -4 Z "
    "M0 13 Q3.4 18 0 23 Q-3.4 18 0 13 Z M23 -3 Q29 -5 33 2 Q26 3 23 -3 Z "
    "M-23 -3 Q-29 -5 -33 2 Q-26 3 -23 -3 Z";
constexpr const char* kBranch =
    "M6 54 C22 56 40 52 50 40 M50 40 Q48 32 54 28 Q58 36 50 40 Z M42 47 Q38 41 43 35 Q48 42 42 47 "
    "Z "
    "M42 47 Q50 46 54 51 Q46 55 42 47 Z M32 52 Q28 48 31 43 Q37 47 32 52 Z "
    "M32 52 Q39 53 42 58 Q34 60 32 52 Z M21 54 Q18 51 20 48 Q25 50 21 54 Z "
    "M21 54 Q27 56 28 61 Q21 61 21 54 Z";

void add_ornament(Drawing& face, Point middle, float size) {
  constexpr Rgba kGold{212, 160, 52, 255};
  const Affine right = shift(middle.x, middle.y) * scaling(size / 100, size / 100);
  const Affine left = right * scaling(-1, 1);
  Path scrolls = moved(outline(kScrolls), right);
  join(scrolls, moved(outline(kScrolls), left));
  line(face, scrolls, 1.1F, kPaper);
  fill(face, moved(outline(kBuds), right), kGold);
  const Path inner = suit_outline(Suit::spades, {middle.x, middle.y - 1}, size * 0.86F);
  line(face, inner, 0.6F, kPaper);
  for (const Affine& side : {right, left}) {
    inked(face, moved(outline(kBranch), side * shift(0, 9) * scaling(0.82F, 0.9F)), kGold, 0.5F,
          suit_colour(Suit::spades));
    face.shapes.back().even_odd = true;
  }
}

void add_ace(Drawing& face, Suit suit) {
  const bool spades = suit == Suit::spades;
  const Point middle{kCardWidth / 2, kCardHeight / 2 - (spades ? 2.0F : 0.0F)};
  const float size = spades ? 60.0F : 42.0F;
  fill(face, suit_outline(suit, middle, size), suit_colour(suit));
  if (spades) add_ornament(face, middle, size);
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
