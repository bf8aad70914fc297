#include <gtest/gtest.h>

#include "qt/geometry.h"

namespace tombrello::qt {
namespace {

using painting::PixelRect;

TEST(TableGeometry, IsTheLargestFourByThreeInTheMiddle) {
  EXPECT_EQ(TableGeometry(QSize(800, 600), 1, 96).table(), (PixelRect{0, 0, 800, 600}));
  EXPECT_EQ(TableGeometry(QSize(1366, 768), 1, 96).table(), (PixelRect{171, 0, 1195, 768}));
  EXPECT_EQ(TableGeometry(QSize(601, 1000), 1, 96).table(), (PixelRect{0, 274, 601, 725}));
  EXPECT_EQ(TableGeometry(QSize(1202, 902), 1.5, 96).table(), (PixelRect{0, 0, 1202, 902}));
}

TEST(TableGeometry, AnswersTheNearestPlaceOnTheTable) {
  // 200 pixels beside the table on each side; Qt counts 1.5 pixels as one.
  const TableGeometry wide(QSize(2000, 1200), 1.5, 96);
  EXPECT_EQ(wide.table(), (PixelRect{200, 0, 1800, 1200}));
  EXPECT_EQ(wide.logical({0, 400}), (Point{0, 300}));
  EXPECT_EQ(wide.logical({1000.0 / 1.5, 400}), (Point{400, 300}));
  EXPECT_EQ(wide.logical({1999, -7}), (Point{800, 0}));
  EXPECT_EQ(wide.logical({-1e9, 1e9}), (Point{0, 600}));
}

TEST(TableGeometry, CardsOfAKindHaveOneSizeAndTouchingBoxesTouch) {
  for (int width = 400; width < 2000; ++width) {
    const TableGeometry geometry(QSize(width, width), 1, 96);
    const QSize first = to_qrect(geometry.picture_pixels({250, 485.75F, 310, 580})).size();
    for (int k = 1; k < 14; ++k) {
      const float x = 250 + static_cast<float>(k) * (60.0F / 3.1F);
      const QRect card = to_qrect(geometry.picture_pixels({x, 20, x + 60, 114.25F}));
      ASSERT_EQ(card.size(), first) << width;
    }
    const PixelRect above = geometry.pixels({0, 0, 158, 30});
    ASSERT_EQ(above.bottom, geometry.pixels({0, 30, 158, 130}).top) << width;
  }
}

TEST(TableGeometry, PointsFollowTheScreenAlone) {
  EXPECT_DOUBLE_EQ(TableGeometry(QSize(400, 300), 1, 96).pixels_per_point(), 96.0 / 72);
  EXPECT_DOUBLE_EQ(TableGeometry(QSize(3000, 2000), 1.5, 96).pixels_per_point(), 2);
}

}  // namespace
}  // namespace tombrello::qt
