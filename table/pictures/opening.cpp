#include "table/pictures/faces.h"
#include "table/pictures/glyphs.h"
#include "table/pictures/outline.h"

namespace tombrello {
namespace {

constexpr Rgba kGold{250, 206, 92, 255};

void add_felt(Drawing& picture) {
  Paint felt;
  felt.kind = Paint::Kind::radial;
  felt.from = {picture.width / 2, picture.height * 0.45F};
  felt.radius = picture.width * 0.65F;
  felt.stops = {{0, {36, 150, 60, 255}}, {0.6F, {0, 104, 24, 255}}, {1, {0, 52, 18, 255}}};
  Path all;
  all.move({0, 0});
  all.line({picture.width, 0});
  all.line({picture.width, picture.height});
  all.line({0, picture.height});
  all.close();
  fill(picture, all, felt);
}

void add_card(Drawing& picture, const Drawing& card, float degrees) {
  const Affine place = shift(320, 640) * turning(degrees) * shift(0, -310) * scaling(1.5F, 1.5F) *
                       shift(-kCardWidth / 2, -kCardHeight / 2);
  append(picture, card, place);
}

void add_name(Drawing& picture, std::string_view name, float baseline, float height,
              float spacing) {
  const float left = (picture.width - display_width(name, height, spacing)) / 2;
  fill(picture, moved(display_outline(name, height, spacing), shift(left, baseline)), kGold);
  picture.shapes.back().even_odd = true;
}

}  // namespace

Drawing draw_opening() {
  Drawing picture{640, 480, {}};
  add_felt(picture);
  add_card(picture, draw_face(Suit::hearts, 1), -36);
  add_card(picture, draw_face(Suit::spades, 13), -18);
  add_card(picture, draw_face(Suit::diamonds, 12), 0);
  add_card(picture, draw_face(Suit::clubs, 11), 18);
  add_card(picture, draw_face(Suit::hearts, 10), 36);
  add_name(picture, "Tombrello", 130, 80, 4);
  add_name(picture, "Frassivo", 190, 30, 8);
  return picture;
}

}  // namespace tombrello
