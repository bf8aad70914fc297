#include <gtest/gtest.h>

#include "qt/picture_cache.h"
#include "qt/rasteriser.h"
#include "sample_pictures.h"

namespace tombrello::qt {
namespace {

constexpr QRgb kClear = qRgba(0, 0, 0, 0);

QImage look(PictureCache& cache, PictureSet set, QSize size, bool turned = false) {
  return cache.rendered({{set, 7}, turned, turned, size}).image;
}

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

TEST(PictureCache, TurnsToThePixel) {
  PictureCache cache(sample_picture);
  const QImage upright = look(cache, PictureSet::carta, {61, 95});
  const QImage lying = look(cache, PictureSet::cartao, {95, 61});
  const QImage turned = look(cache, PictureSet::carta, {61, 95}, true);
  ASSERT_EQ(lying.size(), QSize(95, 61));
  for (int y = 0; y < 95; ++y) {
    for (int x = 0; x < 61; ++x) {
      // The top edge points to the right.
      ASSERT_EQ(lying.pixel(94 - y, x), upright.pixel(x, y)) << x << ' ' << y;
      ASSERT_EQ(turned.pixel(60 - x, 94 - y), upright.pixel(x, y)) << x << ' ' << y;
    }
  }
  EXPECT_NE(turned, upright);
}

TEST(PictureCache, OpaquePartIsOpaqueAndMostOfACard) {
  PictureCache cache(sample_picture);
  for (const int width : {38, 61, 216}) {
    const QSize size(width, width * 94 / 60);
    const auto& card = cache.rendered({{PictureSet::carta, 3}, false, false, size});
    int covered = 0;
    for (const QRect& part : card.opaque) {
      covered += part.width() * part.height();
      for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
          ASSERT_EQ(qAlpha(card.image.pixel(x, y)), 255);
        }
      }
    }
    EXPECT_GT(covered, width * size.height() * 8 / 10) << width;
  }
}

TEST(PictureCache, ForgetsSizesOutOfUse) {
  PictureCache cache(sample_picture);
  look(cache, PictureSet::carta, {60, 94});
  look(cache, PictureSet::cartao, {94, 60});
  cache.start_round();
  look(cache, PictureSet::carta, {30, 47});
  cache.drop_unused();
  EXPECT_EQ(cache.bytes(), 30U * 47U * 4U);
}

}  // namespace
}  // namespace tombrello::qt
