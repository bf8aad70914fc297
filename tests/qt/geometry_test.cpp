#include <gtest/gtest.h>

#include "qt/geometry.h"

namespace tombrello::qt {
namespace {

TEST(TableGeometry, IsTheLargestFourByThreeInTheMiddle) {
  EXPECT_EQ(TableGeometry(QSize(800, 600), 1, 96).table(), QRect(0, 0, 800, 600));
  EXPECT_EQ(TableGeometry(QSize(1366, 768), 1, 96).table(), QRect(171, 0, 1024, 768));
  EXPECT_EQ(TableGeometry(QSize(601, 1000), 1, 96).table(), QRect(0, 274, 601, 451));
  EXPECT_EQ(TableGeometry(QSize(1202, 902), 1.5, 96).table(), QRect(0, 0, 1202, 902));
}

TEST(TableGeometry, AnswersTheNearestPlaceOnTheTable) {
  // 200 pixels beside the table on each side; Qt counts 1.5 pixels as one.
  const TableGeometry wide(QSize(2000, 1200), 1.5, 96);
  EXPECT_EQ(wide.table(), QRect(200, 0, 1600, 1200));
  EXPECT_EQ(wide.logical({0, 400}), QPointF(0, 300));
  EXPECT_EQ(wide.logical({1000.0 / 1.5, 400}), QPointF(400, 300));
  EXPECT_EQ(wide.logical({1999, -7}), QPointF(800, 0));
  EXPECT_EQ(wide.logical({-1e9, 1e9}), QPointF(0, 600));
}

TEST(TableGeometry, CardsOfAKindHaveOneSizeAndTouchingBoxesTouch) {
  for (int width = 400; width < 2000; ++width) {
    const TableGeometry geometry(QSize(width, width), 1, 96);
    const QSize first = geometry.picture_pixels({250, 485.75F, 310, 580}).size();
    for (int k = 1; k < 14; ++k) {
      const float x = 250 + static_cast<float>(k) * (60.0F / 3.1F);
      ASSERT_EQ(geometry.picture_pixels({x, 20, x + 60, 114.25F}).size(), first) << width;
    }
    const QRect above = geometry.pixels({0, 0, 158, 30});
    ASSERT_EQ(above.bottom() + 1, geometry.pixels({0, 30, 158, 130}).top()) << width;
  }
}

TEST(TableGeometry, PointsFollowTheScreenAlone) {
  EXPECT_DOUBLE_EQ(TableGeometry(QSize(400, 300), 1, 96).pixels_per_point(), 96.0 / 72);
  EXPECT_DOUBLE_EQ(TableGeometry(QSize(3000, 2000), 1.5, 96).pixels_per_point(), 2);
}

}  // namespace
}  // namespace tombrello::qt
