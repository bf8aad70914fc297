#include <gtest/gtest.h>

#include "painting/picture_cache.h"
#include "sample_pictures.h"

namespace tombrello::qt {
namespace {

using painting::PictureCache;
using painting::PixelRect;

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
