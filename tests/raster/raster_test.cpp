#include "raster/rasteriser.h"

#include <gtest/gtest.h>

#include "pictures/outline.h"
#include "tests/qt/sample_pictures.h"

namespace tombrello::raster {
namespace {

constexpr std::uint32_t kClear = 0;
constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kBlue = 0xFF0000FF;

int red(std::uint32_t pixel) {
  return static_cast<int>(pixel >> 16 & 0xFF);
}

int alpha(std::uint32_t pixel) {
  return static_cast<int>(pixel >> 24);
}

TEST(Rasteriser, StretchesToTheSizeAndLeavesTheRestClear) {
  const Drawing drawing{10, 20, {qt::sample_box(5, 10, 5, 10, {255, 0, 0, 255})}};
  const Bitmap image = rasterise(drawing, 30, 40);
  ASSERT_EQ(image.width, 30);
  ASSERT_EQ(image.height, 40);
  EXPECT_EQ(image.at(14, 39), kClear);
  EXPECT_EQ(image.at(29, 19), kClear);
  EXPECT_EQ(image.at(15, 20), kRed);
  EXPECT_EQ(image.at(29, 39), kRed);
}

TEST(Rasteriser, FillsNestedOutlinesByTheirRule) {
  Shape ring = qt::sample_box(0, 0, 30, 30, {0, 0, 255, 255});
  const Path hole = qt::sample_box(10, 10, 10, 10, {}).path;
  ring.path.verbs.insert(ring.path.verbs.end(), hole.verbs.begin(), hole.verbs.end());
  ring.path.points.insert(ring.path.points.end(), hole.points.begin(), hole.points.end());
  ring.even_odd = true;
  EXPECT_EQ(rasterise({30, 30, {ring}}, 30, 30).at(15, 15), kClear);
  ring.even_odd = false;
  EXPECT_EQ(rasterise({30, 30, {ring}}, 30, 30).at(15, 15), kBlue);
}

TEST(Rasteriser, PaintsGradientsFromEndToEnd) {
  Shape band = qt::sample_box(0, 0, 256, 128, {});
  band.fill.kind = Paint::Kind::linear;
  band.fill.to = {256, 0};
  band.fill.stops = {{0, {0, 0, 0, 255}}, {1, {255, 255, 255, 255}}};
  const Bitmap linear = rasterise({256, 128, {band}}, 256, 128);
  EXPECT_LE(red(linear.at(0, 2)), 2);
  EXPECT_NEAR(red(linear.at(128, 2)), 128, 2);
  EXPECT_GE(red(linear.at(255, 2)), 253);

  band.fill.kind = Paint::Kind::radial;
  band.fill.from = {128, 64};
  band.fill.radius = 64;
  const Bitmap radial = rasterise({256, 128, {band}}, 256, 128);
  EXPECT_LE(red(radial.at(128, 64)), 3);
  EXPECT_NEAR(red(radial.at(128, 96)), 128, 3);
  EXPECT_EQ(red(radial.at(10, 64)), 255);
}

// A line of 4 units around a box of 20: half of it lies outside, and its corners are round.
TEST(Rasteriser, LinesHaveTheirWidthAndRoundEnds) {
  Shape box = qt::sample_box(10, 10, 20, 20, {});
  box.filled = false;
  box.stroke_width = 4;
  box.stroke = {255, 0, 0, 255};
  const Bitmap around = rasterise({40, 40, {box}}, 40, 40);
  EXPECT_EQ(around.at(20, 8), kRed);
  EXPECT_EQ(around.at(20, 11), kRed);
  EXPECT_EQ(around.at(20, 12), kClear);
  EXPECT_EQ(around.at(20, 7), kClear);
  EXPECT_LT(alpha(around.at(8, 8)), 160);

  Shape line;
  line.path.move({10, 20});
  line.path.line({30, 20});
  line.filled = false;
  line.stroke_width = 4;
  line.stroke = {0, 0, 255, 128};
  const Bitmap half = rasterise({40, 40, {line}}, 40, 40);
  EXPECT_EQ(half.at(20, 20), 0x80000080) << "multiplied by its alpha";
  EXPECT_NE(half.at(9, 20), kClear);
  EXPECT_EQ(half.at(7, 20), kClear);
}

// A circle of four curves covers as much as a circle does.
TEST(Rasteriser, CurvesAreAsRoundAsTheyShould) {
  Shape circle;
  circle.path = art::circle({100, 100}, 100);
  circle.fill.colour = {0, 0, 255, 255};
  const Bitmap image = rasterise({200, 200, {circle}}, 200, 200);
  double covered = 0;
  for (const std::uint32_t pixel : image.pixels) covered += alpha(pixel) / 255.0;
  EXPECT_NEAR(covered, 31415.9, 50);
}

TEST(Bitmap, TurnsAndMirrorsToThePixel) {
  const Bitmap upright = rasterise(qt::sample_picture({PictureSet::carta, 7}), 61, 95);
  const Bitmap lying = quarter_turn(upright);
  const Bitmap turned = mirrored(upright, true, true);
  ASSERT_EQ(lying.width, 95);
  for (int y = 0; y < 95; ++y) {
    for (int x = 0; x < 61; ++x) {
      ASSERT_EQ(lying.at(94 - y, x), upright.at(x, y)) << x << ' ' << y;
      ASSERT_EQ(turned.at(60 - x, 94 - y), upright.at(x, y)) << x << ' ' << y;
    }
  }
  EXPECT_NE(turned, upright);
}

// Whatever lies across rows that different cores paint.
TEST(Rasteriser, LeavesNoSeamInALargePicture) {
  Drawing drawing{700, 700, {}};
  for (const float left : {-300.0F, -100.0F, 100.0F}) {
    Shape line;
    line.filled = false;
    line.stroke_width = 2.5F;
    line.stroke = {200, 0, 0, 255};
    line.path.move({left - 50, -50});
    line.path.line({left + 750, 750});
    drawing.shapes.push_back(line);
  }
  const Bitmap image = rasterise(drawing, 700, 700);
  for (int y = 1; y < 700; ++y) {
    for (int x = 1; x < 700; ++x) {
      ASSERT_EQ(image.at(x, y), image.at(x - 1, y - 1)) << x << ' ' << y;
    }
  }
  EXPECT_EQ(image.at(400, 300), 0xFFC80000U);
}

}  // namespace
}  // namespace tombrello::raster
