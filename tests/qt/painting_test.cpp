#include <gtest/gtest.h>

#include <QPainter>
#include <random>

#include "compare.h"
#include "qt/canvas.h"
#include "qt/geometry.h"
#include "sample_pictures.h"

namespace tombrello::qt {
namespace {

using painting::PixelRect;
using painting::Region;

/// A screen that is painted bit by bit, as the changes come.
class Screen {
 public:
  explicit Screen(QSize size, double ratio = 1) : geometry_(size, ratio, 96) {
    image_ = QImage(size, QImage::Format_RGB32);
    image_.fill(Qt::magenta);
  }

  void show_changes(Surface& surface) {
    const PixelRect room{0, 0, image_.width(), image_.height()};
    paint(surface, painting::changed_pixels(surface.take_changes(), geometry_, letters_, room));
  }
  void paint(const Surface& surface, const Region& region) {
    QPainter painter(&image_);
    QtCanvas canvas(painter);
    drafts_ = paint_surface(canvas, letters_, surface, geometry_, region, pictures_, patience_);
  }
  void paint_all(const Surface& surface) { paint(surface, to_region(image_.rect())); }
  void set_patience(painting::Patience patience) { patience_ = patience; }
  void resize(QSize size) {
    geometry_ = TableGeometry(size, 1, 96);
    image_ = QImage(size, QImage::Format_RGB32);
  }

  const QImage& image() const { return image_; }
  const Region& drafts() const { return drafts_; }

 private:
  TableGeometry geometry_;
  QImage image_;
  painting::PictureCache pictures_{sample_picture};
  QtLetters letters_;
  painting::Patience patience_ = painting::kEndlessPatience;
  Region drafts_;
};

QImage fresh(const Surface& surface, QSize size) {
  Screen screen(size);
  screen.paint_all(surface);
  return screen.image();
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
  switch (upto(8)) {
    case 0:
      surface.filled_box(x, y, x - 120, y + 90, upto(2) == 0 ? kFelt : kPaleYellow);
      break;
    case 1:
      surface.open_box(x, y, x + 158, y + 100, kYellow);
      break;
    case 2:
      fan(surface, 1 + upto(14));
      break;
    case 3:
      surface.paint({PictureSet::cartao, 1 + upto(52)}, x, y, 94.25F, 60);
      break;
    case 4:
      surface.paint({PictureSet::carta, 1 + upto(52)}, x, y, -60, -94.25F);
      break;
    case 5:
      surface.set_font_name(upto(2) == 0 ? "Arial" : "Brush Script MT");
      surface.set_font_size(static_cast<float>(8 + upto(24)));
      surface.set_text_colour(kWhite);
      surface.set_text_position(x, y);
      surface.print("OVEST gioca");
      surface.set_text_x(x);
      surface.print("perché NORD pesca");
      break;
    default:
      surface.paint({PictureSet::carta, 1 + upto(52)}, x, y, 60, 94.25F);
  }
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
    EXPECT_TRUE(same_pixels(screen.image(), wanted)) << size.width();
    for (int y = 0; y < size.height(); y += 37) {
      for (int x = 0; x < size.width(); x += 53)
        screen.paint(surface, PixelRect{x, y, x + 53, y + 37});
    }
    EXPECT_TRUE(same_pixels(screen.image(), wanted)) << "exposed in pieces " << size.width();
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
    EXPECT_TRUE(same_pixels(image.copy(erased), felt)) << width;
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
  screen.set_patience({});
  screen.paint_all(surface);
  EXPECT_FALSE(same_pixels(screen.image(), fresh(surface, QSize(1000, 750))));
  screen.set_patience(painting::kEndlessPatience);
  screen.paint(surface, screen.drafts());
  EXPECT_TRUE(screen.drafts().empty());
  EXPECT_TRUE(same_pixels(screen.image(), fresh(surface, QSize(1000, 750))));
}

}  // namespace
}  // namespace tombrello::qt
