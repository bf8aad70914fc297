#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

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

}  // namespace tombrello
