#include "pictures/heads.h"

namespace tombrello::art {
namespace {

using namespace court;

constexpr Rgba kRouge{228, 88, 76, 76};
constexpr Rgba kRuddy{220, 96, 76, 50};
constexpr Rgba kNoseInk{150, 84, 62, 255};
constexpr Rgba kLip{192, 36, 56, 255};
constexpr Rgba kLipInk{112, 20, 36, 255};

// An eye: the almond, its lids, and where the iris stands in it.
struct Eye {
  const char* almond;
  const char* lids;  ///< the line of the upper lid with its lashes
  Point iris;
  float width;
  float height;
};

// `open` is 1 for eyes wide open.
void add_eyes(Figure& f, const std::vector<Eye>& eyes, Rgba colour, float lid, float open) {
  const Affine squint = scaling(1, open);
  Path whites;
  Path irises;
  Path pupils;
  Path glints;
  Path lids;
  for (const Eye& eye : eyes) {
    join(whites, moved(outline(eye.almond), squint));
    join(irises, ellipse(eye.iris, eye.width, eye.height * open));
    join(pupils, ellipse(eye.iris, eye.width * 0.5F, eye.height * 0.5F));
    join(glints, circle({eye.iris.x + 0.4F, eye.iris.y - 0.45F}, 0.32F));
    join(lids, moved(outline(eye.lids), squint));
  }
  f.plain(whites, kWhite);
  f.plain(irises, colour);
  f.plain(pupils, kInk);
  f.plain(glints, kWhite);
  f.line(lids, lid, kInk);
}

// Brows as tapering strokes, from the outer end to the nose and back.
void add_brow(Figure& f, Point outer, Point inner, float thickness, Rgba hair) {
  const float x = (outer.x + inner.x) / 2;
  const float rise = -1.4F;
  Path brow;
  brow.move(outer);
  brow.cubic({outer.x * 0.6F + x * 0.4F, outer.y + rise}, {x, inner.y + rise * 0.9F}, inner);
  brow.cubic({inner.x, inner.y + thickness}, {x, inner.y + rise * 0.9F + thickness}, outer);
  brow.close();
  f.plain(brow, hair);
}

void add_mouth(Figure& f, Point left, Point right, float smile) {
  const float x = (left.x + right.x) / 2;
  const float y = (left.y + right.y) / 2;
  Path mouth;
  mouth.move({left.x, left.y - smile});
  mouth.cubic({x - 0.6F, y + smile * 0.6F}, {x + 0.8F, y + smile * 0.6F},
              {right.x, right.y - smile});
  f.line(mouth, 0.85F, kLipInk);
  Path lower;
  lower.move({x - 1.3F, y + 1.9F});
  lower.cubic({x - 0.4F, y + 2.4F}, {x + 0.6F, y + 2.4F}, {x + 1.5F, y + 1.8F});
  f.line(lower, 0.5F, kNoseInk);
}

// A lady's lips between two corners; they meet in a line that rises to both ends with the smile.
void add_lips(Figure& f, Point left, Point right, float smile) {
  const float x = (left.x + right.x) / 2;
  const float y = (left.y + right.y) / 2;
  const float l = left.y - smile;
  const float r = right.y - smile;
  Path lips;
  lips.move({left.x, l});
  lips.cubic({left.x + 0.9F, y - 1.1F}, {x - 0.7F, y - 1.5F}, {x, y - 0.7F});
  lips.cubic({x + 0.7F, y - 1.5F}, {right.x - 0.9F, y - 1.1F}, {right.x, r});
  lips.cubic({right.x - 1, y + 2.2F}, {left.x + 1, y + 2.2F}, {left.x, l});
  lips.close();
  f.plain(lips, kLip);
  Path parting;
  parting.move({left.x, l});
  parting.cubic({x - 0.8F, y + smile * 0.5F}, {x + 0.8F, y + smile * 0.5F}, {right.x, r});
  f.line(parting, 0.45F, kLipInk);
}

const std::vector<Eye>& turned_eyes() {
  static const std::vector<Eye> eyes{
      {"M-7.1 0.5 C-6.5 -1.7 -4.6 -2 -3.7 0.2 C-4.4 1.5 -6.2 1.6 -7.1 0.5 Z",
       "M-7.3 0.4 C-6.5 -1.8 -4.6 -2.1 -3.6 0.2",
       {-5.6F, 0.05F},
       0.95F,
       1.2F},
      {"M-1 0.6 C0 -2 3 -2.2 4.5 0.1 C3.2 1.8 0.4 1.8 -1 0.6 Z",
       "M-1.1 0.6 C0 -2.1 3 -2.3 4.8 0",
       {1.3F, 0},
       1.25F,
       1.25F}};
  return eyes;
}

const std::vector<Eye>& facing_eyes() {
  static const std::vector<Eye> eyes{{"M-6 0.3 C-5 -2 -2.6 -2 -1.5 0.5 C-2.6 1.7 -5 1.7 -6 0.3 Z",
                                      "M-6.3 0.1 C-5 -2.1 -2.6 -2.1 -1.4 0.5",
                                      {-3.7F, 0},
                                      1.2F,
                                      1.25F},
                                     {"M6 0.3 C5 -2 2.6 -2 1.5 0.5 C2.6 1.7 5 1.7 6 0.3 Z",
                                      "M6.3 0.1 C5 -2.1 2.6 -2.1 1.4 0.5",
                                      {3.6F, 0},
                                      1.2F,
                                      1.25F}};
  return eyes;
}

const std::vector<Eye>& aside_eye() {
  static const std::vector<Eye> eyes{
      {"M-5 0.7 C-5.2 -0.8 -4.2 -1.7 -1.4 0.3 C-2.4 1.5 -4 1.7 -5 0.7 Z",
       "M-5.4 -0.3 C-4.8 -1.8 -3.4 -1.6 -1 0.3",
       {-4.3F, 0.1F},
       0.75F,
       1.2F}};
  return eyes;
}

void add_turned_features(Figure& f, const Look& look, bool lady) {
  const Rgba cheek = lady ? kRouge : kRuddy;
  f.plain(ellipse({3.4F, 5}, 2.4F, 1.9F), cheek);
  f.plain(ellipse({-5.8F, 4.8F}, 1.2F, 1.6F), cheek);
  add_eyes(f, turned_eyes(), look.eyes, lady ? 0.85F : 0.75F, lady ? 1.0F : 0.86F);
  f.line("M-0.2 -1.9 C1 -2.9 2.8 -2.8 4 -1.7", 0.35F, kNoseInk);
  const float thick = lady ? 0.65F : 1.3F;
  add_brow(f, {-7.5F, -2.9F}, {-3.4F, -3.6F + look.frown}, thick * 0.9F, look.hair);
  add_brow(f, {5.8F, -2.6F}, {-0.8F, -3.6F + look.frown}, thick, look.hair);
  f.line(lady ? "M-2.6 -1.4 C-2.9 0.4 -3.8 2.2 -4.5 3.9 C-4.4 5 -3.4 5.2 -2 4.9"
              : "M-2.7 -1.6 C-3 0.4 -4.4 2.2 -5.3 4.1 C-5.2 5.6 -3.8 5.7 -2.6 5.4 "
                "C-1.6 5.4 -1.2 4.7 -1.5 3.9",
         0.65F, kNoseInk);
}

void add_facing_features(Figure& f, const Look& look, bool lady) {
  const Rgba cheek = lady ? kRouge : kRuddy;
  f.plain(ellipse({4.4F, 5}, 1.9F, 1.7F), cheek);
  f.plain(ellipse({-4.4F, 5}, 1.9F, 1.7F), cheek);
  add_eyes(f, facing_eyes(), look.eyes, lady ? 0.85F : 0.75F, lady ? 1.0F : 0.86F);
  const float thick = lady ? 0.65F : 1.3F;
  add_brow(f, {-6.9F, -2.7F}, {-1.5F, -3.3F + look.frown}, thick, look.hair);
  add_brow(f, {6.9F, -2.7F}, {1.5F, -3.3F + look.frown}, thick, look.hair);
  f.line(lady ? "M-0.9 -1.8 C-0.5 0.4 -0.6 2 -1 3.8 M-1.5 4.6 C-0.8 5.2 0.9 5.2 1.5 4.6"
              : "M-1.2 -1.8 C-0.8 0.6 -1 2.2 -1.8 3.9 C-2.2 5.2 -1.2 5.5 -0.6 5.2 "
                "C0 5.8 0.6 5.6 0.9 5.2 C1.8 5.5 2.3 4.8 1.9 3.9",
         0.65F, kNoseInk);
}

void add_aside_features(Figure& f, const Look& look, bool lady) {
  f.plain(ellipse({-1, 5}, 2.3F, 2), lady ? kRouge : kRuddy);
  add_eyes(f, aside_eye(), look.eyes, lady ? 0.85F : 0.8F, lady ? 1.0F : 0.86F);
  add_brow(f, {0.2F, -2.7F}, {-5.9F, -3.2F + look.frown * 0.7F}, lady ? 0.7F : 1.4F, look.hair);
  f.line("M-7 4.5 C-6.4 4.8 -5.9 4.2 -6.3 3.3", 0.55F, kNoseInk);
}

}  // namespace

Affine head_place(float x, float y, float tilt, float side) {
  constexpr float kScale = 1.15F;
  return shift(x, y) * turning(tilt) * scaling(side < 0 ? -kScale : kScale, kScale);
}

void add_neck(Figure& f, const Look& look) {
  f.inked("M-3.6 8 C-3.6 13 -3.8 15.4 -5 17.6 L7 17.6 C5.8 15.4 5.6 13 5.6 8 Z", look.skin);
  f.plain("M-3.2 11.4 C-1 17 3.4 16.6 5.2 10.4 L5.2 8 L-3.2 8 Z", look.shade);
}

void add_man_turned(Figure& f, const Look& look) {
  f.inked(
      "M-6.8 -10 C-7.6 -7 -7.9 -4.6 -7.6 -2.8 C-7.3 -1.6 -7.5 -0.8 -7.9 0.6 C-8.4 2.6 -8 4.4 "
      "-7.4 6 C-6.8 8 -6.4 9.8 -5.4 11.4 C-4.4 13 -3 13.9 -1.2 13.9 C1.6 13.9 5 11.6 7.2 7.6 "
      "C8.8 4 9 -4 8.2 -10 Z",
      look.skin);
  f.plain(
      "M8 -9 C8.8 -4 8.4 4 6.9 7.4 C4.8 11.2 1.6 13.5 -1.2 13.5 C2 11.8 4.6 9 5.6 5.6 "
      "C6.6 1 6.4 -4 5.4 -9 Z",
      look.shade);
  add_turned_features(f, look, false);
  add_mouth(f, {-5, 8.6F}, {0.8F, 8.4F}, look.smile);
}

void add_lady_turned(Figure& f, const Look& look, bool round_chin) {
  f.inked(round_chin
              ? "M-6.6 -10 C-7.4 -7 -7.7 -4.6 -7.3 -2.8 C-7 -1.6 -7.3 -0.6 -7.6 0.6 C-8 2.6 -7.7 "
                "4.8 -7 6.6 C-6.2 8.8 -5 10.4 -3.6 11.4 C-2.2 12.3 -0.4 12.4 0.8 12 C3.4 11.2 6 9 "
                "7 6 C8.2 3 8.4 -4 7.8 -10 Z"
              : "M-6.6 -10 C-7.4 -7 -7.7 -4.6 -7.3 -2.8 C-7 -1.6 -7.3 -0.6 -7.6 0.6 C-7.9 2.6 -7.3 "
                "4.6 -6.6 6.4 C-5.8 8.6 -4.8 10.6 -3.6 12 C-2.8 12.9 -1.8 13.3 -0.8 13.2 C2 12.6 5 "
                "9.6 6.6 6.2 C8 3 8.4 -4 7.8 -10 Z",
          look.skin);
  f.plain(round_chin
              ? "M7.6 -9 C8.2 -4 8 2.6 6.7 5.8 C5.6 8.6 3.2 10.8 0.8 11.6 C3.4 9.8 5 7.6 5.6 "
                "4.6 C6.4 0.6 6.2 -4 5.2 -9 Z"
              : "M7.6 -9 C8.2 -4 7.8 2.6 6.4 5.8 C4.8 9.2 1.8 12.2 -0.8 12.8 C2 10.6 4.6 "
                "7.6 5.4 4.6 C6.4 0.6 6.2 -4 5.2 -9 Z",
          look.shade);
  add_turned_features(f, look, true);
  add_lips(f, {-4.6F, 8.5F}, {0.2F, 8.3F}, look.smile);
}

void add_man_facing(Figure& f, const Look& look) {
  f.inked(
      "M-8 -10 C-8.8 -5 -8.7 0 -8 4 C-7.3 9.4 -4.2 13.8 0 13.8 C4.2 13.8 7.3 9.4 8 4 "
      "C8.7 0 8.8 -5 8 -10 Z",
      look.skin);
  f.plain(
      "M7.8 -9 C8.4 -5 8.3 0 7.6 4 C6.8 9 4 13 0.6 13.4 C3.6 11 5.2 8 5.8 4 "
      "C6.4 0 6.4 -5 5.6 -9 Z",
      look.shade);
  add_facing_features(f, look, false);
  add_mouth(f, {-3, 8.7F}, {3, 8.7F}, look.smile);
}

void add_lady_facing(Figure& f, const Look& look) {
  f.inked(
      "M-7.4 -10 C-8.2 -5 -8 0 -7 4 C-5.8 8.8 -2.6 13 0 13 C2.6 13 5.8 8.8 7 4 "
      "C8 0 8.2 -5 7.4 -10 Z",
      look.skin);
  f.plain(
      "M7.2 -9 C7.8 -5 7.6 0 6.6 4 C5.4 8.4 2.6 12.4 0.4 12.6 C2.8 10.4 4.4 7.6 5 4 "
      "C5.7 0 5.7 -5 5 -9 Z",
      look.shade);
  add_facing_features(f, look, true);
  add_lips(f, {-2.5F, 8.4F}, {2.5F, 8.4F}, look.smile);
}

void add_man_aside(Figure& f, const Look& look) {
  f.inked("M-2.4 13 C-1.8 15.6 -2.2 18 -3.2 20.6 L9.4 20.6 C8.4 14 8.6 8 9.6 4 L4 8 Z", look.skin);
  f.plain("M-2 14 C-1.8 15.6 -2 16.6 -2.3 17.8 C1.6 18.2 5.4 16.6 8.4 12.6 L9 6 Z", look.shade);
  f.inked(
      "M-4.6 -10 C-5.8 -8 -6.3 -6 -6.4 -4.2 C-6.4 -3.2 -5.7 -2.6 -5.7 -1.8 C-6.4 -0.4 -7.8 1.2 "
      "-9 2.7 C-9.9 3.9 -9.4 5.3 -7.6 5.1 C-7.2 5.6 -7.1 6 -7.2 6.4 C-7.9 7 -8.1 7.4 -7.8 7.8 "
      "L-6.7 8.2 C-7.4 8.6 -7.6 9.2 -7.3 9.8 C-6.7 10.3 -6.5 10.7 -6.6 11.2 C-7.1 12 -7 13.4 -6 "
      "14.2 C-4.8 15 -3 14.9 -1.4 14.4 C2 13.4 4.6 12.2 6.4 9.8 L9.6 4 L9.6 -10 Z",
      look.skin);
  add_aside_features(f, look, false);
  f.line("M-7 8 C-6 8.2 -5.2 8 -4.6 7.6", 0.75F, kLipInk);
  f.inked("M3.4 -1 C4.4 -3 7 -2.4 6.6 0.6 C6.4 2.6 5.2 4.6 4 3.8 C3.2 3.2 3.8 2.4 3.6 1.6 Z",
          look.skin);
  f.line("M4.4 -0.2 C5.2 -1.2 6 -0.4 5.2 1", 0.45F, kNoseInk);
}

void add_lady_aside(Figure& f, const Look& look) {
  f.inked(
      "M-4 -11 C-5.4 -9 -6.2 -6.6 -6.2 -4.4 C-6.2 -3.2 -5.9 -2.4 -5.9 -1.6 C-6.4 0 -7.5 1.7 "
      "-8.7 3 C-9 3.9 -8.3 4.4 -7.1 4.5 C-6.7 5 -6.7 5.4 -6.8 5.8 C-7.4 6.3 -7.7 6.9 -7.3 7.3 "
      "L-6.3 7.6 C-7 8 -7.1 8.6 -6.8 9.1 C-6.2 9.6 -6.1 9.9 -6.2 10.5 C-6.5 11.2 -6.3 12.4 "
      "-5.4 13 C-4.2 13.8 -2.6 13.6 -1.2 13 C2 11.8 4.6 9.8 5.6 6.6 L9 4 L9 -11 Z",
      look.skin);
  f.plain(
      "M-1.6 12.8 C1.6 11.6 4.2 9.6 5.2 6.4 L8.6 4 L8.6 -2 C6.6 2 5.6 4.6 4 7 C2.6 9.6 0.6 11.6 "
      "-1.6 12.8 Z",
      look.shade);
  add_aside_features(f, look, true);
  f.plain(
      "M-6.9 6.1 C-7.3 6.5 -7.5 6.9 -7.2 7.2 L-6.3 7.6 C-6.8 8 -6.9 8.4 -6.7 8.8 "
      "C-5.8 9 -4.9 8.4 -4.2 7.2 C-5 6.9 -5.9 6.1 -6.9 6.1 Z",
      kLip);
  f.line("M-6.8 7.5 L-4.2 7.2", 0.4F, kLipInk);
}

void add_freckles(Figure& f) {
  f.sprinkle(circle({0, 0}, 0.42F),
             {{-6.4F, 3}, {-5.2F, 4.2F}, {-6.2F, 5.6F}, {2, 3.4F}, {3.8F, 3}, {3.2F, 5}, {5, 4.4F}},
             {190, 106, 62, 255});
}

}  // namespace tombrello::art
