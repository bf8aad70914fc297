#include "windows/audio/audio.h"

#include <windows.h>

#include <mmsystem.h>

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "devices/takes.h"
#include "windows/audio/mci.h"
#include "windows/disk_archive.h"

namespace tombrello::windows {
namespace {

constexpr std::size_t kVoices = 4;  // of one take, that may sound at a time

/// The waves that were asked for: each with its takes, each of those with some voices.
class MciWaves : public devices::WavePlayer {
 public:
  explicit MciWaves(std::wstring folder) : folder_(std::move(folder)) {}

  // A device may be plugged in while the game runs.
  std::size_t takes(const std::string& file) override {
    if (waveOutGetNumDevs() == 0) return 0;
    const auto [place, fresh] = waves_.try_emplace(file);
    for (int take = 1; fresh && take <= devices::kMostTakes; ++take) {
      MciFile voice = open(file, take);
      if (!voice.opened()) break;
      place->second.emplace_back().push_back(std::move(voice));
    }
    return place->second.size();
  }

  // With all voices sounding the oldest one starts anew.
  void play(const std::string& file, std::size_t take) override {
    auto& voices = waves_.at(file).at(take);
    auto free = std::find_if(voices.begin(), voices.end(),
                             [](const MciFile& voice) { return !voice.playing(); });
    if (free == voices.end() && voices.size() < kVoices) {
      free = voices.insert(voices.end(), open(file, static_cast<int>(take) + 1));
    }
    if (free == voices.end()) free = voices.begin();
    free->play();
    std::rotate(free, free + 1, voices.end());
  }

 private:
  MciFile open(const std::string& file, int take) const {
    return {path_in(folder_, devices::take_file(file, take)), L"waveaudio"};
  }

  std::wstring folder_;
  std::map<std::string, std::vector<std::vector<MciFile>>> waves_;
};

class MciTunes : public devices::TunePlayer {
 public:
  explicit MciTunes(std::wstring folder) : folder_(std::move(folder)) {}

  std::optional<double> play(const std::string& file) override {
    tune_.emplace(path_in(folder_, file), L"sequencer");
    if (!tune_->play()) return std::nullopt;
    return tune_->seconds();
  }
  bool has_device() override { return midiOutGetNumDevs() > 0; }
  bool playing() override { return tune_ && tune_->playing(); }
  void stop() override { tune_.reset(); }

 private:
  std::wstring folder_;
  std::optional<MciFile> tune_;
};

}  // namespace

devices::System mci_system(const std::wstring& folder) {
  return {[=] { return std::make_unique<MciWaves>(folder); },
          [=] { return std::make_unique<MciTunes>(folder); }, [] { MessageBeep(MB_OK); }};
}

}  // namespace tombrello::windows
