#include "pictures/court_parts.h"

namespace tombrello::art {

using namespace court;

void Figure::inked(const Path& path, Rgba colour) {
  art::inked(drawing_, moved(path, at), colour, 0.75F, kInk);
}

void Figure::plain(const Path& path, Rgba colour) {
  fill(drawing_, moved(path, at), colour);
}

void Figure::line(std::string_view path, float width, Rgba colour) {
  art::line(drawing_, moved(outline(path), at), width, colour);
}

void Figure::sprinkle(const Path& motif, const std::vector<Point>& places, Rgba colour) {
  Path all;
  for (const Point& place : places) join(all, moved(motif, shift(place.x, place.y)));
  plain(all, colour);
}

Affine head_place(float x, float y, float tilt, float side) {
  return shift(x, y) * turning(tilt) * scaling(side < 0 ? -1.0F : 1.0F, 1);
}

void add_neck(Figure& figure) {
  figure.plain("M-3.4 8 L-4 20 L6 20 L5.4 8 Z", kSkin);
  figure.line("M-3.4 8 C-3.4 13 -3.6 15 -5 17 M5.4 8 C5.4 13 5.8 15 7.2 17", 0.7F, kInk);
  figure.plain("M-3 11 Q1 17 5.2 10 L5.2 8 L-3 8 Z", kShade);
}

void add_face(Figure& figure, const Look& look) {
  figure.inked(look.lady ? "M-7.4 -9 C-8 -3 -7.8 4 -5.4 8.6 C-4 11.4 -2.2 13 -0.6 13 "
                           "C2.6 13 6 9.4 7.4 5 C8.4 1 8.4 -5 7.6 -9 Z"
                         : "M-7.6 -9 C-8.4 -3 -8.2 5 -6.2 9 C-4.8 12 -2.6 13.4 -0.4 13.4 "
                           "C3 13.4 6.8 10.4 8 5.4 C8.8 1 8.8 -5 8 -9 Z",
               kSkin);
  figure.plain(
      "M7.5 -9 C8.2 -5 8.2 1 7.4 5 C6 10 2.8 12.6 -0.4 12.8 C3 11 5 8 5.6 4 "
      "C6.2 0 6 -5 5 -9 Z",
      kShade);
  figure.sprinkle(circle({0, 0}, 1.9F), {{-5.3F, 4.6F}, {3.6F, 4.8F}}, {236, 96, 84, 84});
  figure.plain("M-6.9 0 Q-5 -2 -3 -0.1 Q-5 1.3 -6.9 0 Z M-0.6 0 Q1.8 -2.3 4.2 0 Q1.8 1.5 -0.6 0 Z",
               {255, 255, 255, 255});
  figure.sprinkle(circle({0, -0.2F}, 1.05F), {{-5.2F, 0}, {1.5F, 0}}, look.eyes);
  figure.line(look.lady ? "M-7.2 0 Q-5 -2.3 -2.9 -0.1 M-0.7 0 Q1.8 -2.6 4.4 -0.1 L5 -1"
                        : "M-7 0 Q-5 -2.2 -2.9 -0.1 M-0.7 0 Q1.8 -2.5 4.3 0",
              0.75F, kInk);
  const float f = look.frown;
  Path brows;
  brows.move({-7.3F, -3.4F});
  brows.cubic({-6, -4.8F}, {-4.6F, -4.6F + f / 2}, {-3.2F, -3.8F + f});
  brows.move({-0.6F, -3.8F + f});
  brows.cubic({1, -4.9F + f / 2}, {3.6F, -5}, {5.2F, -3.4F});
  Drawing scratch;
  art::line(scratch, brows, look.lady ? 0.75F : 1.2F, look.hair);
  figure.add(scratch);
  figure.line("M-2.4 -1.8 C-2.7 0.4 -3.4 2.6 -4.2 4.2 C-4.2 5.4 -3 5.7 -1.6 5.2", 0.65F,
              {158, 92, 72, 255});
  if (look.lady) {
    figure.plain("M-4.2 8.2 Q-3 7.1 -2.1 7.7 Q-1.2 7.1 0.8 8.1 Q-1.6 11 -4.2 8.2 Z", kCrimson);
    figure.line("M-4.2 8.2 Q-2 8.9 0.8 8.1", 0.45F, {120, 10, 34, 255});
  } else {
    figure.line("M-4.4 8.6 Q-2 9.6 1 8.3", 0.9F, {168, 52, 52, 255});
  }
}

void add_moustache(Figure& figure, Rgba hair) {
  figure.inked(
      "M-2 6 C-4 5.4 -6.6 6.6 -8.4 10 C-6 9.6 -3.6 9.4 -1.9 8 C0.2 9.4 3.4 9.8 6 10 "
      "C4.2 6.6 0.8 5.2 -2 6 Z",
      hair);
}

void add_arm(Figure& figure, Point hand, float side, Rgba sleeve, Rgba cuff) {
  const Affine before = figure.at;
  figure.at = shift(hand.x, hand.y) * scaling(side, 1);
  figure.inked("M-15 16 C-14 9 -8 4 -4.6 2.4 L1.6 6.6 C1 10 -1 13 -4 16 Z", sleeve);
  figure.line("M-10 12 C-8 9 -5 7 -3 6.4 M-8 14 C-6 11 -4 9.6 -2 9", 0.45F, kInk);
  figure.inked("M-5.8 1.6 C-4.8 0.8 -4 0.4 -3.4 0.4 L3 4.8 C3 5.8 2.6 6.8 1.8 8 Z", cuff);
  figure.inked(
      "M-3 2.8 C-3.8 1 -3.8 -2 -3 -3.2 C-1 -4.4 2.4 -4.2 3.2 -3.2 C4 -1.8 4 2 3.4 3.8 "
      "C2 5 -1.6 4.8 -3 2.8 Z",
      kSkin);
  figure.line(
      "M-1 -1.8 Q1.4 -2.4 3.5 -1.6 M-1 0.2 Q1.4 -0.4 3.7 0.3 M-0.8 2.2 Q1.4 1.6 3.6 2.2 "
      "M-3 -1 Q-1.4 -2.4 -1 -1.8 L-0.8 2.2",
      0.5F, kInk);
  figure.at = before;
}

}  // namespace tombrello::art
