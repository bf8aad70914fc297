#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "tests/sound/disk_audio.h"
#include "tools/music/arrange.h"

namespace tombrello {

inline constexpr double kLow = 440, kHigh = 659.26;  ///< hertz of a4 and e5

/// A tune of one voice; `tempo` in quarters a minute.
inline std::string short_tune(const std::string& notes, int tempo) {
  return music::midi_file(
      music::arrange(music::read_score("tempo " + std::to_string(tempo) + "\nsection a\nmelody " +
                                       notes + "\nplay a melody=flute\n")));
}

inline double loudness(const std::vector<double>& samples, double from, double to) {
  const auto at = [&](double seconds) {
    return std::min(samples.size(), static_cast<std::size_t>(seconds * DiskAudio::kRate));
  };
  double power = 0;
  for (std::size_t i = at(from); i < at(to); ++i) power += samples[i] * samples[i];
  return std::sqrt(power / std::max(1.0, (to - from) * DiskAudio::kRate));
}

/// Where sound begins, in seconds: at first, and after each silence that lasts so long.
inline std::vector<double> onsets(const std::vector<double>& samples, double silence = 0.05) {
  std::vector<double> found;
  double last = -silence;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double now = static_cast<double>(i) / DiskAudio::kRate;
    if (std::abs(samples[i]) < 0.003) continue;
    if (now - last >= silence) found.push_back(now);
    last = now;
  }
  return found;
}

/// How much of a pitch there is in the quarter of a second that follows.
inline double strength(const std::vector<double>& samples, double from, double hertz) {
  const auto start = static_cast<std::size_t>(from * DiskAudio::kRate);
  const std::size_t length = DiskAudio::kRate / 4;
  double real = 0, imaginary = 0;
  for (std::size_t i = 0; i < length && start + i < samples.size(); ++i) {
    const double turn = 2 * std::numbers::pi * hertz * static_cast<double>(i) / DiskAudio::kRate;
    real += samples[start + i] * std::cos(turn);
    imaginary += samples[start + i] * std::sin(turn);
  }
  return std::hypot(real, imaginary) / static_cast<double>(length);
}

}  // namespace tombrello
