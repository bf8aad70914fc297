#include "tools/sounds/sounds.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace tombrello::sounds {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;

Samples silence(double seconds) {
  return Samples(static_cast<std::size_t>(seconds * kRate));
}

double time_of(std::size_t i) {
  return static_cast<double>(i) / kRate;
}

/// Plain noise, the same at every run.
class Noise {
 public:
  explicit Noise(std::uint32_t seed) : state_(seed) {}
  double next() {
    state_ = state_ * 1664525u + 1013904223u;
    return static_cast<double>(state_ >> 8) / (1 << 23) - 1;
  }

 private:
  std::uint32_t state_;
};

/// Lets pass what lies below a frequency; what it takes away lies above.
class LowPass {
 public:
  explicit LowPass(double hertz) : share_(1 - std::exp(-kTurn * hertz / kRate)) {}
  double pass(double sample) { return held_ += share_ * (sample - held_); }

 private:
  double share_;
  double held_ = 0;
};

/// Lets pass what lies between two frequencies, and falls off above at twice the slope: noise
/// that reaches higher hisses.
class Band {
 public:
  Band(double bottom, double top) : bottom_(bottom), once_(top), twice_(top) {}
  double pass(double sample) {
    const double low = twice_.pass(once_.pass(sample));
    return low - bottom_.pass(low);
  }

 private:
  LowPass bottom_, once_, twice_;
};

/// From 0 to 1 and softly so, then falling by e every `fall` seconds; 0 before its time.
double stroke(double t, double rise, double fall) {
  if (t < 0) return 0;
  if (t < rise) return 0.5 - 0.5 * std::cos(kTurn / 2 * t / rise);
  return std::exp((rise - t) / fall);
}

/// A note as of a wooden bar: the tone, and a fainter one above that dies sooner.
void add_note(Samples& samples, double start, double hertz, double loudness, double fall) {
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double t = time_of(i) - start;
    samples[i] += loudness * (stroke(t, 0.008, fall) * std::sin(kTurn * hertz * t) +
                              0.15 * stroke(t, 0.004, fall / 4) * std::sin(kTurn * 3 * hertz * t));
  }
}

/// So that no sound ends in a click.
void fade_end(Samples& samples, double seconds) {
  const auto length = static_cast<std::size_t>(seconds * kRate);
  for (std::size_t i = 0; i < length; ++i)
    samples[samples.size() - 1 - i] *= static_cast<double>(i) / static_cast<double>(length);
}

/// Decibels below full scale, over all of it.
void set_level(Samples& samples, double decibels) {
  double power = 0;
  for (const double sample : samples) power += sample * sample;
  const double now = std::sqrt(power / static_cast<double>(samples.size()));
  for (double& sample : samples) sample *= std::pow(10, decibels / 20) / now;
}

void put(std::string& out, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out.push_back(static_cast<char>(value >> (8 * i) & 0xff));
}

}  // namespace

// No two cards fall alike: from one take to the next the noise is another, the card slides longer
// or shorter, lands harder or softer, and is nearer or farther by a decibel and a half at most.
Samples rustle(int take) {
  struct Hand {
    std::uint32_t seed;
    double landing;  // seconds
    double slide, edge, cloth, decibels;
  };
  static constexpr Hand hands[kRustles] = {
      {7, 0.024, 1.0, 1.0, 1.0, 0.0},    {23, 0.029, 1.2, 0.8, 1.1, -1.2},
      {41, 0.020, 0.8, 1.2, 0.9, 0.9},   {59, 0.033, 1.3, 0.9, 0.8, -0.6},
      {83, 0.022, 0.9, 0.95, 1.1, -1.5}, {97, 0.027, 1.1, 1.1, 1.0, 1.4},
  };
  assert(take >= 1 && take <= kRustles);
  const Hand& hand = hands[take - 1];
  Samples samples = silence(0.11);
  Noise noise(hand.seed);
  Band hiss(1700, 4200), snap(2600, 6000), brush(600, 2000);
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double t = time_of(i), landed = t - hand.landing;
    const double raw = noise.next();
    // The card slides off the pack, lands on its edge, and settles on the cloth.
    samples[i] = 0.25 * hand.slide * stroke(t, 0.020, 0.012) * hiss.pass(raw) +
                 0.40 * hand.edge * stroke(landed, 0.0006, 0.0045) * snap.pass(raw) +
                 0.40 * hand.cloth * stroke(landed, 0.003, 0.017) * brush.pass(raw) +
                 0.11 * hand.cloth * stroke(landed, 0.002, 0.010) * std::sin(kTurn * 190 * landed);
  }
  fade_end(samples, 0.01);
  set_level(samples, -26.5 + hand.decibels);
  return samples;
}

std::string rustle_file(int take) {
  return take == 1 ? "carta.wav" : "carta-" + std::to_string(take) + ".wav";
}

Samples notice() {
  Samples samples = silence(0.85);
  add_note(samples, 0.0, 587.33, 0.125, 0.16);
  add_note(samples, 0.16, 880.0, 0.125, 0.2);
  fade_end(samples, 0.05);
  return samples;
}

Samples beep() {
  Samples samples = silence(0.22);
  add_note(samples, 0.0, 698.46, 0.2, 0.05);
  fade_end(samples, 0.03);
  return samples;
}

std::string wave_file(const Samples& samples) {
  std::string out = "RIFF";
  const auto bytes = static_cast<std::uint32_t>(2 * samples.size());
  put(out, 36 + bytes, 4);
  out += "WAVEfmt ";
  put(out, 16, 4);
  put(out, 1, 2);
  put(out, 1, 2);
  put(out, kRate, 4);
  put(out, 2 * kRate, 4);
  put(out, 2, 2);
  put(out, 16, 2);
  out += "data";
  put(out, bytes, 4);
  for (const double sample : samples) {
    const auto value =
        static_cast<std::int32_t>(std::lround(std::clamp(sample, -1.0, 1.0) * 32767));
    put(out, static_cast<std::uint32_t>(value), 2);
  }
  return out;
}

}  // namespace tombrello::sounds
