// What can go wrong with the pictures without anyone noticing at once.

#include "pictures/pictures.h"

#include <gtest/gtest.h>

#include <QXmlStreamReader>
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <set>
#include <vector>

#include "pictures/faces.h"
#include "pictures/outline.h"
#include "pictures/suits.h"
#include "pictures/svg.h"
#include "qt/rasteriser.h"

namespace tombrello {
using namespace art;
using namespace qt;
namespace {

constexpr int kFaces = 52;
constexpr std::array kSuits = {Suit::hearts, Suit::diamonds, Suit::clubs, Suit::spades};

// Of `kFaces`, which count from 1.
int suit_of(int index) {
  return (index - 1) / 13;
}
bool is_court(int index) {
  return (index - 1) % 13 >= 10;
}

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

int count_pixels(const QRect& part, const std::function<bool(int, int)>& counts) {
  int count = 0;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) count += counts(x, y) ? 1 : 0;
  }
  return count;
}

int differing_pixels(const QImage& a, const QImage& b, int tolerance) {
  return count_pixels(
      a.rect(), [&](int x, int y) { return distance(a.pixel(x, y), b.pixel(x, y)) > tolerance; });
}

int pixels_like(const QImage& image, const QRect& part, Rgba colour) {
  const QRgb wanted = qRgb(colour.r, colour.g, colour.b);
  return count_pixels(part, [&](int x, int y) { return distance(image.pixel(x, y), wanted) < 12; });
}

TEST(Pictures, BacksAndCourtsLookTheSameAfterAHalfTurn) {
  std::vector<Picture> pictures{{PictureSet::dorsov, 0}, {PictureSet::dorsov, 1}};
  for (int index = 1; index <= kFaces; ++index) {
    if (is_court(index)) pictures.push_back({PictureSet::carta, index});
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
      for (std::size_t other = 0; other + 1 < fifths.size(); ++other) {
        EXPECT_GE(differing_pixels(fifths[other], fifths.back(), 60), 15)
            << other + 1 << " and " << index;
      }
    }
  }
}

TEST(Pictures, IndicesStandInTheOuterFifthOfAllFourCorners) {
  for (int index = 1; index <= kFaces; ++index) {
    const QImage image = twice(face(index));
    const Rgba suit = suit_colour(kSuits.at(suit_of(index)));
    for (const int left : {3, 192 - 38}) {
      EXPECT_GT(pixels_like(image, {left, 6, 35, 50}, suit), 200) << index;
      EXPECT_GT(pixels_like(image, {left, 62, 35, 28}, suit), 180) << index;
      EXPECT_GT(pixels_like(image, {left, 250, 35, 50}, suit), 200) << index;
      EXPECT_GT(pixels_like(image, {left, 216, 35, 28}, suit), 180) << index;
    }
    // The gap beside them keeps an index whole where the next card covers the rest.
    for (const int gap : {37, 154}) {
      EXPECT_EQ(pixels_like(image, {gap, 6, 1, 294}, kPaper), 294) << index;
    }
  }
}

TEST(Pictures, PipsAreAsManyAsTheyCountAndOfOneColour) {
  double pip = 0;  // pixels
  for (int index = 1; index <= kFaces; ++index) {
    if (is_court(index)) continue;
    const QImage image = twice(face(index));
    const Suit own = kSuits.at(suit_of(index));
    for (const Suit suit : kSuits) {
      const int count = pixels_like(image, image.rect(), suit_colour(suit));
      EXPECT_TRUE(suit == own || count < 20) << index << ": " << count;
    }
    const int between_indices = pixels_like(image, {38, 6, 116, 294}, suit_colour(own));
    const int rank = index - 13 * suit_of(index);
    if (rank == 1) continue;
    if (rank == 2) pip = between_indices / 2.0;
    const double smaller = rank > 3 ? 20 * 20 / (23.0 * 23.0) : 1;
    EXPECT_NEAR(between_indices / (pip * smaller), rank, 0.3) << index;
  }
}

// And the opening picture covers its frame.
TEST(Pictures, FillTheirShapeAndNothingBeyond) {
  std::vector<Picture> pictures{
      {PictureSet::quadro, 0}, {PictureSet::dorsov, 0}, {PictureSet::dorsov, 1}};
  for (int index = 1; index <= kFaces; ++index) pictures.push_back({PictureSet::carta, index});
  for (const Picture& picture : pictures) {
    const QImage image = twice(draw_picture(picture));
    const bool is_card = picture.set != PictureSet::quadro;
    const double radius = is_card ? 13 : 0;
    const double blurred = is_card ? 1.5 : 0;
    const int wrong = count_pixels(image.rect(), [&](int x, int y) {
      // How far into a corner's square the pixel lies, from the centre of its arc.
      const double dx = radius - std::min(x + 0.5, image.width() - x - 0.5);
      const double dy = radius - std::min(y + 0.5, image.height() - y - 0.5);
      const double out = std::hypot(std::max(dx, 0.0), std::max(dy, 0.0)) - radius;
      const int alpha = qAlpha(image.pixel(x, y));
      return (out > blurred && alpha != 0) || (out <= -blurred && alpha != 255);
    });
    EXPECT_EQ(wrong, 0) << "set " << static_cast<int>(picture.set) << " index " << picture.index;
  }
}

TEST(Pictures, TheBacksOfTheTwoPacksAreFarApartAndTheFirstNeedsSixteenPaintsAtMost) {
  const Drawing first = draw_picture({PictureSet::dorsov, 0});
  std::set<std::array<int, 4>> paints;
  for (const Shape& shape : first.shapes) {
    EXPECT_TRUE(shape.fill.stops.empty());
    const Rgba c = shape.filled ? shape.fill.colour : shape.stroke;
    paints.insert({c.r, c.g, c.b, c.a});
  }
  EXPECT_LE(paints.size(), 16U);
  const auto lightness = [](const Drawing& back) {
    return qGray(
        twice(back).scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0));
  };
  EXPECT_GT(lightness(draw_picture({PictureSet::dorsov, 1})), lightness(first) + 30);
}

TEST(Pictures, AsSvgKeepTheirShapesAndGradients) {
  const Drawing opening = draw_picture({PictureSet::quadro, 0});
  QXmlStreamReader reader(QByteArray::fromStdString(to_svg(opening)));
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

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

// What an eye makes of linear red, green and blue: a full one, and such that lack the long, the
// middle or the short cones wholly (Machado, Oliveira and Fernandes, 2009).
constexpr std::array<Matrix, 4> kSights = {{{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
                                            {{{0.152286, 1.052583, -0.204868},
                                              {0.114503, 0.786281, 0.099216},
                                              {-0.003882, -0.048116, 1.051998}}},
                                            {{{0.367322, 0.860646, -0.227968},
                                              {0.280085, 0.672501, 0.047413},
                                              {-0.011820, 0.042940, 0.968881}}},
                                            {{{1.255528, -0.076749, -0.178779},
                                              {-0.078411, 0.930809, 0.147602},
                                              {0.004733, 0.691367, 0.303900}}}}};

double dot(const Triple& a, const Triple& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Triple linear(Rgba colour) {
  const auto channel = [](int value) {
    const double share = value / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return {channel(colour.r), channel(colour.g), channel(colour.b)};
}

double contrast(Rgba a, Rgba b) {
  constexpr Triple kLuminance{0.2126, 0.7152, 0.0722};
  const double la = dot(kLuminance, linear(a)) + 0.05;
  const double lb = dot(kLuminance, linear(b)) + 0.05;
  return std::max(la, lb) / std::min(la, lb);
}

// CIE L*a*b* of a suit's colour as an eye sees it.
Triple seen(Suit suit, const Matrix& sight) {
  Triple rgb;
  for (std::size_t i = 0; i < 3; ++i) {
    rgb[i] = std::clamp(dot(sight[i], linear(suit_colour(suit))), 0.0, 1.0);
  }
  const auto root = [](double t) {
    return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116;
  };
  const double x = root(dot({0.4124564, 0.3575761, 0.1804375}, rgb) / 0.95047);
  const double y = root(dot({0.2126729, 0.7151522, 0.0721750}, rgb));
  const double z = root(dot({0.0193339, 0.1191920, 0.9503041}, rgb) / 1.08883);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

TEST(Colours, EverySuitIsReadOnPaperAndRedOrDark) {
  for (const Suit suit : kSuits) {
    EXPECT_GE(contrast(suit_colour(suit), kPaper), 4.6);
    const int red = suit_colour(suit).r;
    const bool is_red = suit == Suit::hearts || suit == Suit::diamonds;
    EXPECT_TRUE(is_red ? red > 150 : red < 60) << red;
  }
}

// A difference of 1 is just seen, side by side.
TEST(Colours, NoTwoSuitsAreAlikeToAnyEye) {
  for (const Matrix& sight : kSights) {
    for (const Suit one : kSuits) {
      for (const Suit other : kSuits) {
        const Triple a = seen(one, sight);
        const Triple b = seen(other, sight);
        const double difference = std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
        EXPECT_TRUE(one == other || difference >= 18)
            << "suits " << static_cast<int>(one) << " and " << static_cast<int>(other) << ": "
            << difference << " in sight " << &sight - kSights.data();
      }
    }
  }
  const auto lightness = [](Suit suit) { return seen(suit, kSights[0])[0]; };
  EXPECT_GE(std::abs(lightness(Suit::hearts) - lightness(Suit::diamonds)), 12) << "without hues";
  EXPECT_GE(std::abs(lightness(Suit::clubs) - lightness(Suit::spades)), 20) << "without hues";
}

TEST(Suits, NoTwoHaveOneShape) {
  std::vector<QImage> shapes;
  for (const Suit suit : kSuits) {
    Drawing drawing{40, 40, {}};
    fill(drawing, suit_outline(suit, {20, 20}, 36), {0, 0, 0, 255});
    shapes.push_back(rasterise(drawing, 40, 40));
    for (std::size_t other = 0; other + 1 < shapes.size(); ++other) {
      EXPECT_GE(differing_pixels(shapes[other], shapes.back(), 60), 150) << other;
    }
  }
}

}  // namespace
}  // namespace tombrello
