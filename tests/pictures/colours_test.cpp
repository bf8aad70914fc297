// The four suits are read on paper, and told apart by eyes that miss a kind of cone.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "pictures/faces.h"
#include "pictures/suits.h"

namespace tombrello::art {
namespace {

using Triple = std::array<double, 3>;

struct Sight {
  const char* name;
  std::array<Triple, 3> matrix;  ///< what the eye makes of linear red, green and blue
};

// Machado, Oliveira and Fernandes, 2009, for eyes that lack a kind of cone wholly.
constexpr std::array<Sight, 4> kSights = {{{"full", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
                                           {"no long cones",
                                            {{{0.152286, 1.052583, -0.204868},
                                              {0.114503, 0.786281, 0.099216},
                                              {-0.003882, -0.048116, 1.051998}}}},
                                           {"no middle cones",
                                            {{{0.367322, 0.860646, -0.227968},
                                              {0.280085, 0.672501, 0.047413},
                                              {-0.011820, 0.042940, 0.968881}}}},
                                           {"no short cones",
                                            {{{1.255528, -0.076749, -0.178779},
                                              {-0.078411, 0.930809, 0.147602},
                                              {0.004733, 0.691367, 0.303900}}}}}};

Triple linear(Rgba colour) {
  const auto channel = [](int value) {
    const double share = value / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return {channel(colour.r), channel(colour.g), channel(colour.b)};
}

double dot(const Triple& a, const Triple& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

double contrast(Rgba a, Rgba b) {
  constexpr Triple kLuminance{0.2126, 0.7152, 0.0722};
  const double la = dot(kLuminance, linear(a)) + 0.05;
  const double lb = dot(kLuminance, linear(b)) + 0.05;
  return std::max(la, lb) / std::min(la, lb);
}

// CIE L*a*b* of a colour as an eye sees it.
Triple seen(Rgba colour, const Sight& sight) {
  Triple rgb;
  for (std::size_t i = 0; i < 3; ++i) {
    rgb[i] = std::clamp(dot(sight.matrix[i], linear(colour)), 0.0, 1.0);
  }
  const auto root = [](double t) {
    return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116;
  };
  const double x = root(dot({0.4124564, 0.3575761, 0.1804375}, rgb) / 0.95047);
  const double y = root(dot({0.2126729, 0.7151522, 0.0721750}, rgb));
  const double z = root(dot({0.0193339, 0.1191920, 0.9503041}, rgb) / 1.08883);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double sine(double degrees) {
  return std::sin(degrees * std::numbers::pi / 180);
}

double cosine(double degrees) {
  return std::cos(degrees * std::numbers::pi / 180);
}

// CIEDE2000, as Sharma, Wu and Dalal write it.
double difference(const Triple& one, const Triple& two) {
  const double mean = (std::hypot(one[1], one[2]) + std::hypot(two[1], two[2])) / 2;
  const double g = 1.5 - 0.5 * std::sqrt(std::pow(mean, 7) / (std::pow(mean, 7) + std::pow(25, 7)));
  const auto hue = [&](const Triple& lab) {
    const double angle = std::atan2(lab[2], lab[1] * g) * 180 / std::numbers::pi;
    return angle < 0 ? angle + 360 : angle;
  };
  const double c1 = std::hypot(one[1] * g, one[2]);
  const double c2 = std::hypot(two[1] * g, two[2]);
  const double turn = std::remainder(hue(two) - hue(one), 360.0);
  const double h = std::fmod(hue(one) + turn / 2 + 360, 360);
  const double l = (one[0] + two[0]) / 2 - 50;
  const double c = (c1 + c2) / 2;
  const double t = 1 - 0.17 * cosine(h - 30) + 0.24 * cosine(2 * h) + 0.32 * cosine(3 * h + 6) -
                   0.2 * cosine(4 * h - 63);
  const double dl = (two[0] - one[0]) / (1 + 0.015 * l * l / std::sqrt(20 + l * l));
  const double dc = (c2 - c1) / (1 + 0.045 * c);
  const double dh = 2 * std::sqrt(c1 * c2) * sine(turn / 2) / (1 + 0.015 * c * t);
  const double bend = sine(60 * std::exp(-std::pow((h - 275) / 25, 2))) * 2 *
                      std::sqrt(std::pow(c, 7) / (std::pow(c, 7) + std::pow(25, 7)));
  return std::sqrt(dl * dl + dc * dc + dh * dh - bend * dc * dh);
}

TEST(Colours, EverySuitIsReadOnPaper) {
  for (int suit = 0; suit < 4; ++suit) {
    EXPECT_GE(contrast(suit_colour(static_cast<Suit>(suit)), kPaper), 4.6) << "suit " << suit;
  }
}

TEST(Colours, NoTwoSuitsAreAlikeToAnyEye) {
  // Two pairs of the published test data of the formula.
  EXPECT_NEAR(difference({50, 2.6772, -79.7751}, {50, 0, -82.7485}), 2.0425, 1e-4);
  EXPECT_NEAR(difference({60.2574, -34.0099, 36.2677}, {60.4626, -34.1751, 39.4387}), 1.2644, 1e-4);
  for (const Sight& sight : kSights) {
    for (int a = 0; a < 4; ++a) {
      for (int b = a + 1; b < 4; ++b) {
        EXPECT_GE(difference(seen(suit_colour(static_cast<Suit>(a)), sight),
                             seen(suit_colour(static_cast<Suit>(b)), sight)),
                  11)
            << "suits " << a << " and " << b << ", " << sight.name;
      }
    }
  }
}

}  // namespace
}  // namespace tombrello::art
