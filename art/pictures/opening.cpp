#include <string_view>
#include <utility>
#include <vector>

#include "pictures/faces.h"
#include "pictures/glyphs.h"
#include "pictures/outline.h"

namespace tombrello::art {
namespace {

constexpr float kWidth = 640;
constexpr float kHeight = 480;
constexpr Rgba kGold{244, 200, 88, 255};
constexpr Rgba kIvory{255, 248, 226, 255};
constexpr Rgba kUmber{50, 20, 8, 255};

Paint gradient(Paint::Kind kind, Point from, Point to, std::vector<Stop> stops) {
  Paint paint;
  paint.kind = kind;
  paint.from = from;
  paint.to = to;
  paint.stops = std::move(stops);
  return paint;
}

void add_felt(Drawing& picture) {
  const Path all = polygon({{0, 0}, {kWidth, 0}, {kWidth, kHeight}, {0, kHeight}});
  Paint felt = gradient(Paint::Kind::radial, {kWidth / 2, 200}, {},
                        {{0, {44, 148, 62, 255}},
                         {0.35F, {12, 118, 34, 255}},
                         {0.7F, {0, 80, 24, 255}},
                         {1, {0, 34, 14, 255}}});
  felt.radius = 430;
  fill(picture, all, felt);
  for (int row = 0; row < 9; ++row) {
    Path damask;
    for (int column = 0; column < 12; ++column) {
      const float x = static_cast<float>(column) * 56 + (row % 2 == 0 ? 12.0F : 40.0F);
      const float y = static_cast<float>(row) * 56 + 16;
      join(damask, suit_outline(static_cast<Suit>((row + column) % 4), {x, y}, 22));
    }
    fill(picture, damask, Rgba{0, 40, 10, 46});
  }
}

void add_frame(Drawing& picture) {
  line(picture, rounded_box(11, 11, kWidth - 11, kHeight - 11, 12), 2.4F, kGold);
  line(picture, rounded_box(17, 17, kWidth - 17, kHeight - 17, 8), 0.9F, kGold);
}

// Each layer is left open where the card will hide it: blending is what costs the most.
void add_shadow(Drawing& picture, const Affine& place) {
  constexpr int kLayers = 10;
  constexpr float kHidden = 4;  // from the card's edge on, corners too
  const Path hidden =
      moved(rounded_box(kHidden, kHidden, kCardWidth - kHidden, kCardHeight - kHidden, 1), place);
  for (int layer = kLayers; layer > 0; --layer) {
    const float spread = 0.8F * static_cast<float>(layer) - 1;
    Path blot =
        moved(rounded_box(-spread, -spread, kCardWidth + spread, kCardHeight + spread, 6 + spread),
              shift(0, 5) * place);
    join(blot, hidden);
    fill(picture, blot, Rgba{0, 10, 4, 17});
    picture.shapes.back().even_odd = true;
  }
}

// Lays a card on the fan, which opens from a point below the picture.
void add_card(Drawing& picture, const Drawing& card, float degrees) {
  constexpr float kScale = 1.6F;
  const Affine place = shift(kWidth / 2, 730) * turning(degrees) * shift(0, -394) *
                       scaling(kScale, kScale) * shift(-kCardWidth / 2, -kCardHeight / 2);
  add_shadow(picture, place);
  append(picture, card, place);
}

void add_fan(Drawing& picture) {
  add_card(picture, draw_back(0), -41.5F);
  add_card(picture, draw_back(1), 41.5F);
  add_card(picture, draw_face(Suit::clubs, 1), -28);
  add_card(picture, draw_face(Suit::spades, 1), 28);
  add_card(picture, draw_face(Suit::spades, 13), -14.2F);
  add_card(picture, draw_face(Suit::diamonds, 11), 14.2F);
  add_card(picture, draw_face(Suit::hearts, 12), 0);
  const Path foot = polygon({{0, 424}, {kWidth, 424}, {kWidth, kHeight}, {0, kHeight}});
  fill(picture, foot,
       gradient(Paint::Kind::linear, {0, 424}, {0, kHeight},
                {{0, {0, 20, 8, 0}}, {1, {0, 20, 8, 55}}}));
}

// Bends a line of letters to an arch whose middle stays.
Path arched(Path letters, float rise) {
  for (Point& p : letters.points) {
    const float aside = (p.x - kWidth / 2) / (kWidth / 2);
    p.y += rise * aside * aside;
  }
  return letters;
}

// The letters of a line one by one, centred: small shapes paint faster than one wide one.
std::vector<Path> letters_of(std::string_view text, float baseline, float height, float spacing) {
  std::vector<Path> letters;
  float x = (kWidth - display_width(text, height, spacing)) / 2;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view letter = text.substr(i, 1);
    letters.push_back(moved(display_outline(letter, height), shift(x, baseline)));
    x += display_width(letter, height) + spacing;
  }
  return letters;
}

void line_all(Drawing& picture, const std::vector<Path>& letters, float down, float width,
              Rgba colour) {
  for (const Path& letter : letters) line(picture, moved(letter, shift(0, down)), width, colour);
}

void add_name(Drawing& picture) {
  std::vector<Path> letters = letters_of("Tombrello", 124, 82, 5);
  for (Path& letter : letters) letter = arched(std::move(letter), 26);
  line_all(picture, letters, 9, 11, {0, 16, 4, 90});
  for (const float depth : {5.0F, 2.5F, 0.0F}) line_all(picture, letters, depth, 5, kUmber);
  line_all(picture, letters, 0, 2.2F, kIvory);
  const Paint gold = gradient(Paint::Kind::linear, {0, 44}, {0, 152},
                              {{0, {255, 246, 200, 255}},
                               {0.42F, {250, 208, 92, 255}},
                               {0.56F, {236, 172, 48, 255}},
                               {1, {178, 104, 22, 255}}});
  for (const Path& letter : letters) {
    fill(picture, letter, gold);
    picture.shapes.back().even_odd = true;
  }
}

void add_maker(Drawing& picture) {
  const std::vector<Path> letters = letters_of("Frassivo", 181, 26, 7);
  line_all(picture, letters, 1.5F, 3, {0, 24, 8, 150});
  for (const Path& letter : letters) {
    fill(picture, letter, kIvory);
    picture.shapes.back().even_odd = true;
  }
  const Path flourish =
      outline("M122 0 L132 -5 L142 0 L132 5 Z M146 0 Q190 -1.8 232 0 Q190 1.8 146 0 Z");
  for (const float side : {-1.0F, 1.0F}) {
    fill(picture, moved(flourish, shift(kWidth / 2, 171) * scaling(side, 1)), kGold);
  }
}

}  // namespace

Drawing draw_opening() {
  Drawing picture{kWidth, kHeight, {}};
  add_felt(picture);
  add_frame(picture);
  add_fan(picture);
  add_name(picture);
  add_maker(picture);
  return picture;
}

}  // namespace tombrello::art
