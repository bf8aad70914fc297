#include "pictures/suits.h"

#include "pictures/outline.h"

namespace tombrello::art {
namespace {

// Each outline is 100 units high about the origin.
Path heart() {
  return outline(
      "M0 50 C-9 33 -46 12 -46 -20 C-46 -38 -36 -50 -22 -50 C-12 -50 -4 -43 0 -31 "
      "C4 -43 12 -50 22 -50 C36 -50 46 -38 46 -20 C46 12 9 33 0 50 Z");
}

Path diamond() {
  return outline("M0 -52 Q16 -22 39 0 Q16 22 0 52 Q-16 22 -39 0 Q-16 -22 0 -52 Z");
}

Path club() {
  return outline(
      "M-20.6 -13.6 C-22.8 -17.2 -24 -21.4 -24 -26 C-24 -39.3 -13.3 -50 0 -50 "
      "C13.3 -50 24 -39.3 24 -26 C24 -21.4 22.8 -17.2 20.6 -13.6 C22 -13.9 23.5 -14 25 -14 "
      "C38.3 -14 49 -3.3 49 10 C49 23.3 38.3 34 25 34 C16.4 34 8.8 29.4 4.6 22.6 "
      "C5.6 36 10 46 20 50 L-20 50 C-10 46 -5.6 36 -4.6 22.6 C-8.8 29.4 -16.4 34 -25 34 "
      "C-38.3 34 -49 23.3 -49 10 C-49 -3.3 -38.3 -14 -25 -14 C-23.5 -14 -22 -13.9 -20.6 -13.6 Z");
}

Path spade() {
  return outline(
      "M0 -52 C7 -33 46 -10 46 17 C46 32 35 40 24 40 C15 40 7 36 3 27 C4 38 9 46 19 50 "
      "L-19 50 C-9 46 -4 38 -3 27 C-7 36 -15 40 -24 40 C-35 40 -46 32 -46 17 "
      "C-46 -10 -7 -33 0 -52 Z");
}

Path unit_outline(Suit suit) {
  switch (suit) {
    case Suit::hearts:
      return heart();
    case Suit::diamonds:
      return diamond();
    case Suit::clubs:
      return club();
    case Suit::spades:
      break;
  }
  return spade();
}

}  // namespace

Rgba suit_colour(Suit suit) {
  switch (suit) {
    case Suit::hearts:
      return {164, 0, 46, 255};
    case Suit::diamonds:
      return {214, 56, 12, 255};
    case Suit::clubs:
      return {0, 84, 104, 255};
    case Suit::spades:
      break;
  }
  return {20, 20, 32, 255};
}

Path suit_outline(Suit suit, Point centre, float size) {
  const float scale = size / 100;
  return moved(unit_outline(suit), shift(centre.x, centre.y) * scaling(scale, scale));
}

}  // namespace tombrello::art
