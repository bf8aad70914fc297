#include "pictures/belts.h"

#include <initializer_list>

#include "pictures/faces.h"
#include "pictures/figure.h"

namespace tombrello::art {
namespace {

using namespace court;

constexpr float kSlope = (kSeamRight - kSeamLeft) / (kRight - kLeft);

// The belt lies along the x axis, about the origin; x runs from -28 to 28 in the panel.
class Belt {
 public:
  explicit Belt(Drawing& face)
      : face_(face), place_{1, 0, kSlope, 1, kCardWidth / 2, kCardHeight / 2} {}

  void band(float half, Rgba colour, float ink) {
    inked(face_, moved(polygon({{-28, -half}, {28, -half}, {28, half}, {-28, half}}), place_),
          colour, ink, kInk);
  }
  void clasp(const Path& path, Rgba colour, float ink) {
    inked(face_, moved(path, place_), colour, ink, kInk);
  }
  /// Both halves of the belt bear the same, turned.
  void both(const Path& half, Rgba colour, float ink = 0) {
    inked(face_, moved(half, place_), colour, ink, kInk);
    inked(face_, moved(half, place_ * scaling(-1, -1)), colour, ink, kInk);
  }

 private:
  Drawing& face_;
  Affine place_;
};

Path along(const Path& motif, std::initializer_list<float> places) {
  Path all;
  for (const float x : places) join(all, moved(motif, shift(x, 0)));
  return all;
}

Path suit_along(Suit suit, float size, std::initializer_list<float> places) {
  return along(moved(suit_outline(suit, {0, 0}, size), turning(90)), places);
}

Path lozenge(float rx, float ry) {
  return polygon({{0, -ry}, {rx, 0}, {0, ry}, {-rx, 0}});
}

// A ribbon with hearts that point to a round clasp.
void add_hearts(Belt& belt) {
  belt.band(4.2F, kGold, 0.75F);
  belt.band(3, suit_colour(Suit::hearts), 0.4F);
  belt.both(suit_along(Suit::hearts, 4.4F, {8.6F, 16, 23.4F}), kCream);
  belt.both(along(circle({0, 0}, 0.7F), {12.3F, 19.7F}), kGold);
  belt.clasp(circle({0, 0}, 4.6F), kGold, 0.6F);
  belt.clasp(circle({0, 0}, 2.6F), kNavy, 0.5F);
}

// Lozenges in two colours, as of a chequered cloth.
void add_diamonds(Belt& belt) {
  belt.band(4.2F, kTeal, 0.75F);
  belt.both(along(lozenge(3.3F, 3.5F), {9, 16.4F, 23.8F}), suit_colour(Suit::diamonds));
  belt.both(along(lozenge(1.2F, 1.4F), {12.7F, 20.1F}), kGold);
  belt.clasp(lozenge(5, 5), kGold, 0.6F);
  belt.clasp(lozenge(2.6F, 2.6F), suit_colour(Suit::diamonds), 0.5F);
}

// Leather with trefoils and a ring.
void add_clubs(Belt& belt) {
  belt.band(4, {112, 66, 38, 255}, 0.75F);
  belt.band(2.9F, {150, 94, 52, 255}, 0.4F);
  belt.both(suit_along(Suit::clubs, 4.8F, {9.2F, 16.6F, 24}), {255, 226, 150, 255});
  belt.both(along(circle({0, 0}, 0.8F), {12.9F, 20.3F}), kInk);
  belt.clasp(circle({0, 0}, 5), kGold, 0.6F);
  belt.clasp(circle({0, 0}, 2.8F), suit_colour(Suit::clubs), 0.5F);
}

// Black between silver.
void add_spades(Belt& belt) {
  belt.band(4.2F, kSteel, 0.75F);
  belt.band(3.1F, suit_colour(Suit::spades), 0.4F);
  belt.both(suit_along(Suit::spades, 5, {9, 16.4F, 23.8F}), kSteel);
  belt.clasp(rounded_box(-4.4F, -4.8F, 4.4F, 4.8F, 1), kGold, 0.6F);
  belt.clasp(rounded_box(-2.4F, -2.8F, 2.4F, 2.8F, 0.6F), kCrimson, 0.5F);
}

}  // namespace

void add_belt(Drawing& face, Suit suit) {
  Belt belt(face);
  switch (suit) {
    case Suit::hearts:
      return add_hearts(belt);
    case Suit::diamonds:
      return add_diamonds(belt);
    case Suit::clubs:
      return add_clubs(belt);
    case Suit::spades:
      return add_spades(belt);
  }
}

}  // namespace tombrello::art
