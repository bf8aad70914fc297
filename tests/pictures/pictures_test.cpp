// What can go wrong with the pictures without anyone noticing at once.

#include "pictures/pictures.h"

#include <gtest/gtest.h>

#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>
#include <vector>

#include "pictures/svg.h"
#include "qt/rasteriser.h"

namespace tombrello {
using namespace art;
using namespace qt;
namespace {

constexpr int kFaces = 52;

Drawing face(int index) {
  return draw_picture({PictureSet::carta, index});
}

// Twice the told size: a unit is two pixels.
QImage twice(const Drawing& drawing) {
  return rasterise(drawing, static_cast<int>(drawing.width) * 2,
                   static_cast<int>(drawing.height) * 2);
}

int distance(QRgb a, QRgb b) {
  return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                   std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

int differing_pixels(const QImage& a, const QImage& b, int tolerance) {
  int count = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      if (distance(a.pixel(x, y), b.pixel(x, y)) > tolerance) ++count;
    }
  }
  return count;
}

int pixels_like(const QImage& image, const QRect& part, QRgb colour) {
  int count = 0;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) {
      if (distance(image.pixel(x, y), colour) < 12) ++count;
    }
  }
  return count;
}

double lightness(const QImage& image) {
  double sum = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) sum += qGray(image.pixel(x, y));
  }
  return sum / (image.width() * image.height());
}

// Colours of the four suits, read off the middle of the Aces' indices.
QRgb suit_sample(int suit) {
  return twice(face(suit * 13 + 1)).pixel(20, 77);
}

TEST(Pictures, HaveTheirToldSizes) {
  const auto size = [](PictureSet set, int index) {
    const Drawing drawing = draw_picture({set, index});
    return std::pair(drawing.width, drawing.height);
  };
  for (int index = 1; index <= kFaces; ++index) {
    EXPECT_EQ(size(PictureSet::carta, index), std::pair(96.0F, 153.0F));
    EXPECT_EQ(size(PictureSet::cartao, index), std::pair(96.0F, 153.0F));
  }
  EXPECT_EQ(size(PictureSet::dorsov, 0), std::pair(96.0F, 154.0F));
  EXPECT_EQ(size(PictureSet::dorsoo, 1), std::pair(96.0F, 155.0F));
  EXPECT_EQ(size(PictureSet::quadro, 0), std::pair(640.0F, 480.0F));
  EXPECT_EQ(draw_icon().width, 64);
}

TEST(Pictures, BacksAndCourtsLookTheSameAfterAHalfTurn) {
  std::vector<Picture> pictures{{PictureSet::dorsov, 0}, {PictureSet::dorsov, 1}};
  for (int index = 1; index <= kFaces; ++index) {
    if ((index - 1) % 13 >= 10) pictures.push_back({PictureSet::carta, index});
  }
  for (const Picture& picture : pictures) {
    // The rasteriser rounds the edges of lines a little differently on their two sides: up to
    // some five square units are forgiven, less than any part that strays over the middle.
    const Drawing drawing = draw_picture(picture);
    const QImage image = rasterise(drawing, 480, static_cast<int>(drawing.height) * 5);
    EXPECT_LT(differing_pixels(image, image.mirrored(true, true), 40), 120)
        << "set " << static_cast<int>(picture.set) << " index " << picture.index;
  }
}

// At the smallest table a fifth of a card is twelve pixels, whichever of its sides is seen.
TEST(Pictures, EveryFaceIsKnownByTheFifthThatAStripShows) {
  for (const int left : {0, 48}) {
    std::vector<QImage> fifths;
    for (int index = 1; index <= kFaces; ++index) {
      fifths.push_back(rasterise(face(index), 60, 94).copy(left, 0, 12, 47));
    }
    for (std::size_t a = 0; a < fifths.size(); ++a) {
      for (std::size_t b = a + 1; b < fifths.size(); ++b) {
        EXPECT_GE(differing_pixels(fifths[a], fifths[b], 60), 15) << a + 1 << " and " << b + 1;
      }
    }
  }
}

TEST(Pictures, IndicesStandInTheOuterFifthOfAllFourCorners) {
  for (int index = 1; index <= kFaces; ++index) {
    const QImage image = twice(face(index));
    const QRgb suit = suit_sample((index - 1) / 13);
    const QRgb paper = image.pixel(37, 153);
    for (const bool right : {false, true}) {
      const int first = right ? 192 - 38 : 3;
      EXPECT_GT(pixels_like(image, {first, 6, 35, 50}, suit), 200) << index;
      EXPECT_GT(pixels_like(image, {first, 62, 35, 28}, suit), 180) << index;
      EXPECT_GT(pixels_like(image, {first, 250, 35, 50}, suit), 200) << index;
      EXPECT_GT(pixels_like(image, {first, 216, 35, 28}, suit), 180) << index;
      // The gap beside them keeps an index whole where the next card covers the rest.
      EXPECT_EQ(pixels_like(image, {right ? 154 : 37, 6, 1, 294}, paper), 294) << index;
    }
  }
}

TEST(Pictures, IndexAndPipsWearTheColourOfTheirSuitAlone) {
  std::vector<QRgb> suits;
  for (int suit = 0; suit < 4; ++suit) suits.push_back(suit_sample(suit));
  for (int index = 1; index <= kFaces; ++index) {
    if ((index - 1) % 13 >= 10) continue;
    const QImage image = twice(face(index));
    const int suit = (index - 1) / 13;
    for (int other = 0; other < 4; ++other) {
      const int count = pixels_like(image, image.rect(), suits[static_cast<std::size_t>(other)]);
      if (other == suit) {
        EXPECT_GT(count, 2500) << index;
      } else {
        EXPECT_LT(count, 20) << index;
      }
    }
  }
  const auto red = [&](int suit) { return qRed(suits[static_cast<std::size_t>(suit)]); };
  EXPECT_GT(std::min(red(0), red(1)), 150);
  EXPECT_LT(std::max(red(2), red(3)), 60);
  EXPECT_GE(std::abs(qGray(suits[0]) - qGray(suits[1])), 30) << "told apart without hues";
  EXPECT_GE(std::abs(qGray(suits[2]) - qGray(suits[3])), 30) << "told apart without hues";
}

TEST(Pictures, CardsFillTheirRoundedShapeAndNothingBeyond) {
  std::vector<Picture> cards{{PictureSet::dorsov, 0}, {PictureSet::dorsov, 1}};
  for (int index = 1; index <= kFaces; ++index) cards.push_back({PictureSet::carta, index});
  for (const Picture& card : cards) {
    const QImage image = twice(draw_picture(card));
    constexpr double kRadius = 13;
    int wrong = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        // How far into a corner's square the pixel lies, from the centre of its arc.
        const double dx = kRadius - std::min(x + 0.5, image.width() - x - 0.5);
        const double dy = kRadius - std::min(y + 0.5, image.height() - y - 0.5);
        const double out = std::hypot(std::max(dx, 0.0), std::max(dy, 0.0)) - kRadius;
        const int alpha = qAlpha(image.pixel(x, y));
        if ((out > 1.5 && alpha != 0) || (out < -1.5 && alpha != 255)) ++wrong;
      }
    }
    EXPECT_EQ(wrong, 0) << "set " << static_cast<int>(card.set) << " index " << card.index;
  }
}

TEST(Pictures, TheBacksOfTheTwoPacksAreFarApartAndTheFirstNeedsSixteenPaintsAtMost) {
  const Drawing first = draw_picture({PictureSet::dorsov, 0});
  std::set<std::tuple<int, int, int, int>> paints;
  for (const Shape& shape : first.shapes) {
    EXPECT_TRUE(shape.fill.stops.empty());
    const Rgba c = shape.filled ? shape.fill.colour : shape.stroke;
    paints.insert({c.r, c.g, c.b, c.a});
  }
  EXPECT_LE(paints.size(), 16U);
  const QImage navy = twice(first);
  const QImage other = twice(draw_picture({PictureSet::dorsov, 1}));
  EXPECT_GT(lightness(other), lightness(navy) + 30);
}

TEST(Pictures, TheOpeningPictureCoversItsFrame) {
  const QImage image = rasterise(draw_picture({PictureSet::quadro, 0}), 320, 240);
  int clear = 0;
  for (int y = 0; y < 240; ++y) {
    for (int x = 0; x < 320; ++x) clear += qAlpha(image.pixel(x, y)) < 255 ? 1 : 0;
  }
  EXPECT_EQ(clear, 0);
}

TEST(Pictures, AsSvgKeepTheirShapesAndGradients) {
  const Drawing opening = draw_picture({PictureSet::quadro, 0});
  const std::string text = to_svg(opening);
  QXmlStreamReader reader(QByteArray::fromStdString(text));
  std::size_t paths = 0;
  QStringList painted;
  QStringList gradients;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    if (reader.name() == u"path") ++paths;
    const QString fill = reader.attributes().value("fill").toString();
    if (fill.startsWith("url(#")) painted.push_back(fill.sliced(5).chopped(1));
    const QString id = reader.attributes().value("id").toString();
    if (!id.isEmpty()) gradients.push_back(id);
  }
  EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
  EXPECT_EQ(paths, opening.shapes.size());
  EXPECT_EQ(painted, gradients);
  EXPECT_GE(gradients.size(), 3);
}

}  // namespace
}  // namespace tombrello
