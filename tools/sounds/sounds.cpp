#include "tools/sounds/sounds.h"

#include <algorithm>
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
  double next() {
    state_ = state_ * 1664525u + 1013904223u;
    return static_cast<double>(state_ >> 8) / (1 << 23) - 1;
  }

 private:
  std::uint32_t state_ = 7;
};

/// Lets pass what lies below a frequency; the rest is what lies above.
class LowPass {
 public:
  explicit LowPass(double hertz) : share_(1 - std::exp(-kTurn * hertz / kRate)) {}
  double pass(double sample) { return held_ += share_ * (sample - held_); }

 private:
  double share_;
  double held_ = 0;
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

void put(std::string& out, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out.push_back(static_cast<char>(value >> (8 * i) & 0xff));
}

}  // namespace

Samples rustle() {
  Samples samples = silence(0.11);
  Noise noise;
  LowPass hiss_top(5200), hiss_bottom(1700), snap_top(9000), snap_bottom(2600), brush_top(2400);
  LowPass brush_bottom(600);
  constexpr double landing = 0.024;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double t = time_of(i);
    const double raw = noise.next();
    const double hiss = hiss_top.pass(raw), snap = snap_top.pass(raw), brush = brush_top.pass(raw);
    // The card slides off the pack, lands on its edge, and settles on the cloth.
    samples[i] = 0.25 * stroke(t, 0.020, 0.012) * (hiss - hiss_bottom.pass(hiss)) +
                 0.45 * stroke(t - landing, 0.0006, 0.0045) * (snap - snap_bottom.pass(snap)) +
                 0.3 * stroke(t - landing, 0.003, 0.017) * (brush - brush_bottom.pass(brush)) +
                 0.08 * stroke(t - landing, 0.002, 0.010) * std::sin(kTurn * 190 * (t - landing));
  }
  fade_end(samples, 0.01);
  return samples;
}

Samples notice() {
  Samples samples = silence(0.85);
  add_note(samples, 0.0, 587.33, 0.26, 0.16);
  add_note(samples, 0.16, 880.0, 0.26, 0.2);
  fade_end(samples, 0.05);
  return samples;
}

Samples beep() {
  Samples samples = silence(0.22);
  add_note(samples, 0.0, 698.46, 0.28, 0.05);
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
