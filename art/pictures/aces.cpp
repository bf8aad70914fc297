#include "pictures/faces.h"
#include "pictures/outline.h"

namespace tombrello::art {
namespace {

constexpr Rgba kGold{222, 170, 58, 255};
constexpr Rgba kOldGold{176, 122, 28, 255};

// What an Ace bears, in the units of a suit's outline 100 high. Scrolls and leaves are told for
// the right half and mirrored; both lie on the suit's colour.
struct Ornament {
  float size;           ///< of the suit's outline, in the card's units
  float laurel;         ///< where its two sprigs are bound, in the card's units
  const char* contour;  ///< a line within the outline
  const char* scrolls;
  const char* leaves;
  const char* buds;  ///< on the axis
};

constexpr Ornament kHearts{
    54,
    110.8F,
    "M0 43 C-9 29 -40 9 -40 -19 C-40 -34 -32 -44.5 -22 -44.5 C-12 -44.5 -5 -36 0 -20 "
    "C5 -36 12 -44.5 22 -44.5 C32 -44.5 40 -34 40 -19 C40 9 9 29 0 43 Z",
    "M0 33 C6 20 33 12 33 -14 C33 -34 11 -36 10 -20 C10 -8 23 -8 23.4 -17 C23.4 -22 17.6 -22.6 "
    "17 -18.6 M0 21 C4 15 13 10 13 2 C13 -5 5 -6 4.6 -0.4 C4.6 3.4 8.6 3.6 8.8 1",
    "M16.4 2 Q19.4 -4 26.4 -3.4 Q24 3.6 16.4 2 Z",
    "M0 -14 Q5 -7 0 0 Q-5 -7 0 -14 Z M0 5 Q3.6 10 0 16 Q-3.6 10 0 5 Z"};

constexpr Ornament kDiamonds{
    64,
    111.2F,
    "M0 -43 Q13.5 -18 32.5 0 Q13.5 18 0 43 Q-13.5 18 -32.5 0 Q-13.5 -18 0 -43 Z",
    "M0 -24 C6 -24 18 -14 18 -7.4 C17.6 -2.4 11.6 -3.4 12 -7.2 C12.4 -9.6 15.2 -9.4 15 -7.4 "
    "M0 24 C6 24 18 14 18 7.4 C17.6 2.4 11.6 3.4 12 7.2 C12.4 9.6 15.2 9.4 15 7.4",
    "M19.4 0 Q23.4 -2.8 28.4 0 Q23.4 2.8 19.4 0 Z",
    "M0 -37 Q3.4 -32 0 -27 Q-3.4 -32 0 -37 Z M0 37 Q3.4 32 0 27 Q-3.4 32 0 37 Z "
    "M0 -21 Q3 -17 0 -13 Q-3 -17 0 -21 Z M0 21 Q3 17 0 13 Q-3 17 0 21 Z"};

constexpr Ornament kClubs{
    58,
    111,
    "M0 -46 C11 -46 20 -37 20 -26 C20 -15 11 -6 0 -6 C-11 -6 -20 -15 -20 -26 C-20 -37 -11 -46 0 "
    "-46 Z M25 -10 C36 -10 45 -1 45 10 C45 21 36 30 25 30 C14 30 5 21 5 10 C5 -1 14 -10 25 -10 Z "
    "M-25 -10 C-14 -10 -5 -1 -5 10 C-5 21 -14 30 -25 30 C-36 30 -45 21 -45 10 C-45 -1 -36 -10 "
    "-25 -10 Z",
    "",
    "",
    "M0 -3 Q3.4 6 0 15 Q-3.4 6 0 -3 Z M0 26 Q3.4 34 0 44 Q-3.4 34 0 26 Z"};

constexpr Ornament kSpades{
    60,
    112.8F,
    "M0 -42 C7 -26 40 -5 40 17 C40 28 32 34.6 23.6 34.6 C14 34.6 6 29 0 19 "
    "C-6 29 -14 34.6 -23.6 34.6 C-32 34.6 -40 28 -40 17 C-40 -5 -7 -26 0 -42 Z",
    "M0 11 C6 22 30 30 32.4 15 C33.4 6 22 3 20.6 10.4 C20 15.6 27 16.4 27.4 12 "
    "M0 1 C8 8 22 4 21 -6 C19.4 -15 8.6 -12 10.4 -5 C12 -1.4 16.6 -4 14.6 -7 "
    "M0 -11 C3 -14 8.6 -18 7.6 -23.6 C6 -28 1.4 -25.6 2.4 -22",
    "M22.6 -2.8 Q27.4 -4.6 31 1.8 Q25 2.8 22.6 -2.8 Z",
    "M0 -36 Q3.6 -31.6 0 -27.4 Q-3.6 -31.6 0 -36 Z "
    "M0 -8.6 Q4 -5 0 -1.4 Q-4 -5 0 -8.6 Z M0 3.2 Q3.2 5.8 0 8.4 Q-3.2 5.8 0 3.2 Z"};

const Ornament& ornament_of(Suit suit) {
  switch (suit) {
    case Suit::hearts:
      return kHearts;
    case Suit::diamonds:
      return kDiamonds;
    case Suit::clubs:
      return kClubs;
    case Suit::spades:
      break;
  }
  return kSpades;
}

Path both_sides(const char* right) {
  Path all = outline(right);
  join(all, moved(outline(right), scaling(-1, 1)));
  return all;
}

void add_rosette(Drawing& face, const Affine& place, Point middle, float size) {
  fill(face, moved(petals(middle, 8, size * 0.2F, size, size * 0.34F), place), kPaper);
  fill(face, moved(circle(middle, size * 0.32F), place), kGold);
}

// Two sprigs of laurel, bound below.
void add_laurel(Drawing& face, float base) {
  const Path stem = outline("M0 0 C10 1.6 22 -2.6 28 -14");
  struct Leaf {
    Point at;
    float degrees;
  };
  Path leaves;
  for (const auto& [at, degrees] :
       {Leaf{{6.2F, 0.1F}, 36}, Leaf{{8, 0.5F}, 132}, Leaf{{12.4F, -1.1F}, 22},
        Leaf{{14.4F, -0.8F}, 116}, Leaf{{18.4F, -3.9F}, 6}, Leaf{{20.2F, -4}, 98},
        Leaf{{23.7F, -8.2F}, -12}, Leaf{{25, -8.4F}, 82}, Leaf{{28, -13.6F}, 22}}) {
    join(leaves,
         moved(outline("M0 0 Q-2.5 -3 0 -7 Q2.5 -3 0 0 Z"), shift(at.x, at.y) * turning(degrees)));
  }
  for (const float side : {1.0F, -1.0F}) {
    const Affine place = shift(kCardWidth / 2, base) * scaling(side * 0.88F, 0.92F);
    inked(face, moved(leaves, place), kGold, 0.4F, kOldGold);
    line(face, moved(stem, place), 1.1F, kOldGold);
  }
  inked(face, circle({kCardWidth / 2, base}, 1.9F), kGold, 0.5F, kOldGold);
}

}  // namespace

void add_ace(Drawing& face, Suit suit) {
  const Ornament& ornament = ornament_of(suit);
  const Point middle{kCardWidth / 2, 73};
  const Affine place =
      shift(middle.x, middle.y) * scaling(ornament.size / 100, ornament.size / 100);
  fill(face, suit_outline(suit, middle, ornament.size), suit_colour(suit));
  line(face, moved(outline(ornament.contour), place), 0.6F, kPaper);
  line(face, moved(both_sides(ornament.scrolls), place), 1.05F, kPaper);
  fill(face, moved(both_sides(ornament.leaves), place), kGold);
  fill(face, moved(outline(ornament.buds), place), kGold);
  if (suit == Suit::diamonds) add_rosette(face, place, {0, 0}, 10.4F);
  if (suit == Suit::clubs) {
    for (const Point& lobe : {Point{0, -26}, Point{-25, 10}, Point{25, 10}}) {
      add_rosette(face, place, lobe, 15);
    }
  }
  add_laurel(face, ornament.laurel);
}

}  // namespace tombrello::art
