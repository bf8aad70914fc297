#include <gtest/gtest.h>

#include <QPainter>
#include <functional>
#include <random>

#include "painting/picture_cache.h"
#include "qt/canvas.h"
#include "qt/geometry.h"
#include "sample_pictures.h"

namespace tombrello::qt {
namespace {

using painting::PixelRect;
using painting::Region;

/// A screen that is painted bit by bit, as the changes come.
struct Screen {
  explicit Screen(QSize size) { resize(size); }

  void resize(QSize size) {
    geometry = TableGeometry(size, 1, 96);
    image = QImage(size, QImage::Format_RGB32);
    image.fill(Qt::magenta);
  }
  void show_changes(Surface& surface) {
    const PixelRect room{0, 0, image.width(), image.height()};
    paint(surface, painting::changed_pixels(surface.take_changes(), geometry, letters, room));
  }
  void paint(const Surface& surface, const Region& region) {
    QPainter painter(&image);
    QtCanvas canvas(painter);
    drafts = paint_surface(canvas, letters, surface, geometry, region, pictures, patience);
  }
  void paint_all(const Surface& surface) { paint(surface, to_region(image.rect())); }

  TableGeometry geometry{QSize(), 1, 96};
  QImage image;
  painting::PictureCache pictures{sample_picture};
  QtLetters letters;
  painting::Patience patience = painting::kEndlessPatience;
  Region drafts;
};

QImage fresh(const Surface& surface, QSize size) {
  Screen screen(size);
  screen.paint_all(surface);
  return screen.image;
}

void fan(Surface& surface, int cards) {
  surface.filled_box(250, 480, 570, 599, kFelt);
  for (int k = 0; k < cards; ++k) {
    surface.paint({PictureSet::carta, k + 1}, 250 + static_cast<float>(k) * 20, 485.75F, 60,
                  94.25F);
  }
}

void paint_something(Surface& surface, std::mt19937& chance) {
  const auto upto = [&](int n) { return static_cast<int>(chance() % static_cast<unsigned>(n)); };
  const auto x = static_cast<float>(upto(820)) - 10.5F;
  const auto y = static_cast<float>(upto(620)) - 10.25F;
  const int card = 1 + upto(52);
  const std::function<void()> kinds[] = {
      [&] { surface.filled_box(x, y, x - 120, y + 90, upto(2) == 0 ? kFelt : kPaleYellow); },
      [&] { surface.open_box(x, y, x + 158, y + 100, kYellow); },
      [&] { fan(surface, 1 + upto(14)); },
      [&] {
        surface.paint({PictureSet::cartao, card}, x, y, 94.25F, 60);
      },
      [&] {
        surface.paint({PictureSet::carta, card}, x, y, -60, -94.25F);
      },
      [&] {
        surface.paint({PictureSet::carta, card}, x, y, 60, 94.25F);
      },
      [&] {
        surface.set_font_name(upto(2) == 0 ? "Arial" : "Brush Script MT");
        surface.set_font_size(static_cast<float>(8 + upto(24)));
        surface.set_text_colour(kWhite);
        surface.set_text_position(x, y);
        surface.print("OVEST gioca");
        surface.set_text_x(x);
        surface.print("perché NORD pesca");
      }};
  kinds[upto(static_cast<int>(std::size(kinds)))]();
}

TEST(Painting, BitByBitIsAsAllAtOnce) {
  for (const QSize size : {QSize(800, 600), QSize(641, 487), QSize(1331, 701)}) {
    Surface surface;
    surface.set_background(kFelt);
    Screen screen(size);
    std::mt19937 chance(5);
    for (int step = 0; step < 120; ++step) {
      paint_something(surface, chance);
      if (step % 3 == 0) screen.show_changes(surface);
    }
    screen.show_changes(surface);
    const QImage wanted = fresh(surface, size);
    EXPECT_TRUE(screen.image == wanted) << size.width();
    for (int y = 0; y < size.height(); y += 37) {
      for (int x = 0; x < size.width(); x += 53)
        screen.paint(surface, PixelRect{x, y, x + 53, y + 37});
    }
    EXPECT_TRUE(screen.image == wanted) << "exposed in pieces " << size.width();
  }
}

// At most sizes some card reaches a pixel further than its area.
TEST(Painting, WhatABoxErasesLeavesNoLineBehind) {
  for (int width = 760; width < 1000; width += 7) {
    const QSize size(width, width * 3 / 4);
    Surface surface;
    surface.set_background(kFelt);
    for (const float left : {250.F, 270.F, 290.F}) {
      surface.paint({PictureSet::carta, 1}, left, 10, 60, 94.25F);
    }
    surface.filled_box(280, 10, 360, 104.25F, kFelt);
    const QImage image = fresh(surface, size);
    const TableGeometry geometry(size, 1, 96);
    const QRect erased = to_qrect(geometry.pixels({280, 5, 370, 115}));
    QImage felt(erased.size(), image.format());
    felt.fill(qRgb(0, 112, 0));
    EXPECT_TRUE(image.copy(erased) == felt) << width;
  }
}

TEST(Painting, CardsStandWhereTheyShouldAndNothingLeavesTheTable) {
  Surface surface;
  surface.set_background(kGrey);
  surface.filled_box(-100, -100, 900, 700, kFelt);
  fan(surface, 14);
  surface.paint({PictureSet::carta, 1}, 780, 500, 60, 94.25F);
  surface.set_text_position(790, 300);
  surface.print("Frassivo");
  const QImage image = fresh(surface, QSize(1700, 1200));  // 50 pixels beside the table
  const QRgb felt = qRgb(0, 112, 0);
  EXPECT_EQ(image.pixel(50, 0), felt);
  EXPECT_EQ(image.pixel(550, 972), felt) << "the corner is cut off";
  EXPECT_EQ(image.pixel(549, 1050), felt);
  EXPECT_EQ(image.pixel(557, 1050), qRgb(250, 250, 240));
  EXPECT_EQ(image.pixel(1180, 1050), qRgb(250, 250, 240));
  EXPECT_EQ(image.pixel(1190, 1050), felt);
  for (int y = 0; y < 1200; ++y) {
    ASSERT_EQ(image.pixel(49, y), qRgb(192, 192, 192));
    ASSERT_EQ(image.pixel(1650, y), qRgb(192, 192, 192));
  }
}

TEST(Painting, DraftsAreAnsweredAndMendedLater) {
  Surface surface;
  fan(surface, 14);
  Screen screen(QSize(800, 600));
  screen.paint_all(surface);
  screen.resize(QSize(1000, 750));
  screen.patience = {};
  screen.paint_all(surface);
  EXPECT_FALSE(screen.image == fresh(surface, QSize(1000, 750)));
  screen.patience = painting::kEndlessPatience;
  screen.paint(surface, screen.drafts);
  EXPECT_TRUE(screen.drafts.empty());
  EXPECT_TRUE(screen.image == fresh(surface, QSize(1000, 750)));
}

// The largest four by three in the middle of the room. Of a press the nearest place on it counts;
// Qt counts 1.5 pixels as one.
TEST(TableGeometry, LiesInTheMiddleOfTheRoom) {
  EXPECT_EQ(TableGeometry(QSize(1366, 768), 1, 96).table(), (PixelRect{171, 0, 1195, 768}));
  EXPECT_EQ(TableGeometry(QSize(601, 1000), 1, 96).table(), (PixelRect{0, 274, 601, 725}));
  const TableGeometry wide(QSize(2000, 1200), 1.5, 96);
  EXPECT_EQ(wide.table(), (PixelRect{200, 0, 1800, 1200}));
  EXPECT_EQ(wide.logical({0, 400}), (Point{0, 300}));
  EXPECT_EQ(wide.logical({1000.0 / 1.5, 400}), (Point{400, 300}));
  EXPECT_EQ(wide.logical({1999, -7}), (Point{800, 0}));
  EXPECT_EQ(wide.logical({-1e9, 1e9}), (Point{0, 600}));
  EXPECT_DOUBLE_EQ(wide.pixels_per_point(), 2) << "whatever the room";
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

TEST(PictureCache, TurnsLyingAndMirroredPicturesToThePixel) {
  painting::PictureCache cache(sample_picture);
  const auto& card = cache.rendered({{PictureSet::carta, 7}, false, false, {61, 95}});
  const auto& lying = cache.rendered({{PictureSet::cartao, 7}, false, false, {95, 61}}).image;
  const auto& back = cache.rendered({{PictureSet::dorsoo, 7}, false, false, {95, 61}}).image;
  const auto& turned = cache.rendered({{PictureSet::carta, 7}, true, true, {61, 95}}).image;
  for (int y = 0; y < 95; ++y) {
    for (int x = 0; x < 61; ++x) {
      ASSERT_EQ(lying.at(94 - y, x), card.image.at(x, y)) << x << ' ' << y;
      ASSERT_EQ(turned.at(60 - x, 94 - y), card.image.at(x, y)) << x << ' ' << y;
    }
  }
  EXPECT_TRUE(back == lying) << "the sample draws a back as it does a face";
  int hiding = 0;
  for (const PixelRect& part : card.opaque.rects()) hiding += part.width() * part.height();
  EXPECT_GT(hiding, 61 * 95 * 8 / 10) << "what lies under it would be painted in vain";
}

TEST(PictureCache, ForgetsSizesOutOfUse) {
  painting::PictureCache cache(sample_picture);
  cache.rendered({{PictureSet::carta, 7}, false, false, {60, 94}});
  cache.rendered({{PictureSet::cartao, 7}, false, false, {94, 60}});
  cache.start_round();
  cache.rendered({{PictureSet::carta, 7}, false, false, {30, 47}});
  cache.drop_unused();
  EXPECT_EQ(cache.bytes(), 30U * 47U * 4U);
}

}  // namespace
}  // namespace tombrello::qt
