#include <gtest/gtest.h>

#include "painting/picture_cache.h"
#include "qt/rasteriser.h"
#include "sample_pictures.h"

namespace tombrello::qt {
namespace {

constexpr QRgb kClear = qRgba(0, 0, 0, 0);

using painting::PictureCache;
using painting::PixelRect;

TEST(Rasteriser, StretchesToTheSizeAndLeavesTheRestClear) {
  Drawing drawing;
  drawing.width = 10;
  drawing.height = 20;
  drawing.shapes.push_back(sample_box(5, 10, 5, 10, {255, 0, 0, 255}));
  const QImage image = rasterise(drawing, 30, 40);
  ASSERT_EQ(image.size(), QSize(30, 40));
  EXPECT_EQ(image.pixel(14, 39), kClear);
  EXPECT_EQ(image.pixel(29, 19), kClear);
  EXPECT_EQ(image.pixel(15, 20), qRgba(255, 0, 0, 255));
  EXPECT_EQ(image.pixel(29, 39), qRgba(255, 0, 0, 255));
}

TEST(Rasteriser, FillsNestedOutlinesByTheirRule) {
  Shape ring = sample_box(0, 0, 30, 30, {0, 0, 255, 255});
  const Path hole = sample_box(10, 10, 10, 10, {}).path;
  ring.path.verbs.insert(ring.path.verbs.end(), hole.verbs.begin(), hole.verbs.end());
  ring.path.points.insert(ring.path.points.end(), hole.points.begin(), hole.points.end());
  ring.even_odd = true;
  EXPECT_EQ(rasterise({30, 30, {ring}}, 30, 30).pixel(15, 15), kClear);
  ring.even_odd = false;
  EXPECT_EQ(rasterise({30, 30, {ring}}, 30, 30).pixel(15, 15), qRgba(0, 0, 255, 255));
}

TEST(Rasteriser, PaintsGradientsFromEndToEnd) {
  Shape band = sample_box(0, 0, 256, 4, {});
  band.fill.kind = Paint::Kind::linear;
  band.fill.from = {0, 0};
  band.fill.to = {256, 0};
  band.fill.stops = {{0, {0, 0, 0, 255}}, {1, {255, 255, 255, 255}}};
  const QImage image = rasterise({256, 4, {band}}, 256, 4);
  EXPECT_LE(qRed(image.pixel(0, 2)), 2);
  EXPECT_NEAR(qRed(image.pixel(128, 2)), 128, 2);
  EXPECT_GE(qRed(image.pixel(255, 2)), 253);
}

TEST(PictureCache, OpaquePartIsOpaqueAndMostOfACard) {
  PictureCache cache(sample_picture);
  for (const int width : {38, 61, 216}) {
    const int height = width * 94 / 60;
    const auto& card = cache.rendered({{PictureSet::carta, 3}, false, false, {width, height}});
    int covered = 0;
    for (const PixelRect& part : card.opaque.rects()) {
      covered += part.width() * part.height();
      for (int y = part.top; y < part.bottom; ++y) {
        for (int x = part.left; x < part.right; ++x) ASSERT_EQ(card.image.at(x, y) >> 24, 255U);
      }
    }
    EXPECT_GT(covered, width * height * 8 / 10) << width;
  }
}

TEST(PictureCache, LyingAndTurnedPicturesAreTheUprightOne) {
  PictureCache cache(sample_picture);
  const auto look = [&](PictureSet set, painting::PixelSize size, bool turned) {
    return cache.rendered({{set, 7}, turned, turned, size}).image;
  };
  const raster::Bitmap upright = look(PictureSet::carta, {61, 95}, false);
  EXPECT_EQ(look(PictureSet::cartao, {95, 61}, false), quarter_turn(upright));
  EXPECT_EQ(look(PictureSet::carta, {61, 95}, true), mirrored(upright, true, true));
}

TEST(PictureCache, ForgetsSizesOutOfUse) {
  PictureCache cache(sample_picture);
  cache.rendered({{PictureSet::carta, 7}, false, false, {60, 94}});
  cache.rendered({{PictureSet::cartao, 7}, false, false, {94, 60}});
  cache.start_round();
  cache.rendered({{PictureSet::carta, 7}, false, false, {30, 47}});
  cache.drop_unused();
  EXPECT_EQ(cache.bytes(), 30U * 47U * 4U);
}

}  // namespace
}  // namespace tombrello::qt
