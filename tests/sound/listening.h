#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <numbers>
#include <string>
#include <thread>
#include <vector>

#include "tools/music/arrange.h"

namespace tombrello {

/// An audio device that writes what it would play into a file, and a program folder beside it.
/// Its time is that of the sound written, however fast that goes.
class DiskAudio {
 public:
  static constexpr int kRate = 44100;

  /// `haste` 1 is real time; more is as many times faster.
  explicit DiskAudio(int haste) {
    namespace fs = std::filesystem;
    std::string name = (fs::temp_directory_path() / "tombrello-sound-XXXXXX").string();
    folder_ = mkdtemp(name.data());
    fs::create_directories(folder_ / "sounds");
    fs::create_directories(folder_ / "music");
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIOFILE", (folder_ / "heard").c_str(), 1);
    setenv("SDL_DISKAUDIODELAY", std::to_string(23 / haste).c_str(), 1);
  }
  DiskAudio(const DiskAudio&) = delete;
  DiskAudio& operator=(const DiskAudio&) = delete;
  ~DiskAudio() {
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
  }

  const std::filesystem::path& folder() const { return folder_; }

  void put(const std::string& name, const std::string& content) const {
    std::ofstream(folder_ / name, std::ios::binary) << content;
  }

  /// Seconds of sound written so far.
  double now() const {
    std::error_code error;
    const auto size = std::filesystem::file_size(folder_ / "heard", error);
    return error ? 0 : static_cast<double>(size) / kBytes / kRate;
  }

  /// Until so much more sound has been written.
  void pass(double seconds) const {
    const double until = now() + seconds;
    await([&] { return now() >= until; });
  }

  /// False if it doesn't come about within a minute.
  static bool await(const std::function<bool()>& condition) {
    for (int i = 0; i < 60'000; ++i) {
      if (condition()) return true;
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return false;
  }

  /// The left channel, -1..1.
  std::vector<double> heard() const {
    std::ifstream in(folder_ / "heard", std::ios::binary);
    std::vector<double> samples;
    for (std::int16_t frame[2]; in.read(reinterpret_cast<char*>(frame), kBytes);)
      samples.push_back(frame[0] / 32768.0);
    return samples;
  }

 private:
  static constexpr int kBytes = 4;  // two channels, 16 bits
  std::filesystem::path folder_;
};

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
