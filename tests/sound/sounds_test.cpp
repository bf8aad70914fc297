#include "tools/sounds/sounds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

#include "devices/takes.h"
#include "tests/sound/files.h"

namespace tombrello {
using namespace devices;
namespace {

/// Decibels of the loudest tenth of a second, which is what an ear compares.
double level(const sounds::Samples& samples) {
  const std::size_t window = sounds::kRate / 10;
  double power = 0, most = 0;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    power += samples[i] * samples[i];
    if (i >= window) power -= samples[i - window] * samples[i - window];
    most = std::max(most, power);
  }
  return 10 * std::log10(most / window);
}

double strength(const sounds::Samples& samples, double hertz) {
  std::complex<double> sum = 0;
  for (std::size_t i = 0; i < samples.size(); ++i)
    sum += samples[i] *
           std::polar(1.0, -2 * std::numbers::pi * hertz * static_cast<double>(i) / sounds::kRate);
  return std::norm(sum);
}

/// Where the middle of a sound's power lies, in hertz.
double centroid(const sounds::Samples& samples) {
  double moment = 0, power = 0;
  for (int hertz = 20; hertz < sounds::kRate / 2; hertz += 20) {
    moment += hertz * strength(samples, hertz);
    power += strength(samples, hertz);
  }
  return moment / power;
}

TEST(Sounds, AreWhatTheToolMakes) {
  for (int take = 1; take <= sounds::kRustles; ++take) {
    const auto name = sounds::rustle_file(take);
    EXPECT_EQ(take_file("carta.wav", take), name);  // where the device looks for it
    EXPECT_TRUE(sounds::wave_file(sounds::rustle(take)) ==
                bytes_of(kRoot / "assets/sounds" / name));
  }
  EXPECT_TRUE(sounds::wave_file(sounds::notice()) == bytes_of(kRoot / "assets/sounds/Notify.wav"));
  EXPECT_TRUE(sounds::wave_file(sounds::beep()) == bytes_of(kRoot / "assets/sounds/beep.wav"));
}

TEST(Sounds, TheRustleIsShortAndNeitherAToneNorAHiss) {
  for (int take = 1; take <= sounds::kRustles; ++take) {
    SCOPED_TRACE(take);
    const auto rustle = sounds::rustle(take);
    const double seconds = static_cast<double>(rustle.size()) / sounds::kRate;
    EXPECT_GE(seconds, 0.06);
    EXPECT_LE(seconds, 0.15);
    EXPECT_NEAR(centroid(rustle), 3000, 700);
    // A tone repeats itself; noise is unlike itself at every shift above a millisecond.
    double power = 0;
    for (const double sample : rustle) power += sample * sample;
    for (std::size_t shift = 44; shift < 400; ++shift) {
      double likeness = 0;
      for (std::size_t i = shift; i < rustle.size(); ++i) likeness += rustle[i] * rustle[i - shift];
      EXPECT_LT(likeness / power, 0.4) << "shift " << shift;
    }
  }
}

TEST(Sounds, TakesDifferALittleAndSignalsDoNotStartle) {
  const double rustle = level(sounds::rustle(1));
  for (int take = 2; take <= sounds::kRustles; ++take) {
    EXPECT_NEAR(level(sounds::rustle(take)), rustle, 1.6) << take;
    EXPECT_NE(sounds::rustle(take), sounds::rustle(take - 1));
  }
  for (const auto& signal : {sounds::notice(), sounds::beep()}) {
    EXPECT_GT(level(signal), rustle);
    EXPECT_LT(level(signal), rustle + 4);
  }
}

}  // namespace
}  // namespace tombrello
