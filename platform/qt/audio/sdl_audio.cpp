#include "qt/audio/sdl_audio.h"

#include <map>
#include <utility>
#include <vector>

#include "devices/takes.h"
#include "qt/audio/sdl_mixer_device.h"
#include "qt/audio/soundfont.h"

namespace tombrello::qt {
namespace {

using Device = std::shared_ptr<SdlMixerDevice>;

/// The waves that were asked for, loaded once each, with their other takes.
class SdlWaves : public devices::WavePlayer {
 public:
  SdlWaves(Device device, std::filesystem::path folder)
      : device_(std::move(device)), folder_(std::move(folder)) {}
  ~SdlWaves() override {
    {
      const auto still = device_->hold_still();
      waves_.clear();
    }
    lease_.reset();
    SdlMixerDevice::leave_thread();
  }
  SdlWaves(const SdlWaves&) = delete;
  SdlWaves& operator=(const SdlWaves&) = delete;

  bool wake() override {
    lease_ = device_->lease();
    return lease_ != nullptr;
  }
  void rest() override { lease_.reset(); }

  std::size_t takes(const std::string& file) override {
    const auto [place, fresh] = waves_.try_emplace(file);
    for (int take = 1; fresh && take <= devices::kMostTakes; ++take) {
      Chunk chunk = device_->load_wave(folder_ / devices::take_file(file, take));
      if (chunk == nullptr) break;
      place->second.push_back(std::move(chunk));
    }
    return place->second.size();
  }
  void play(const std::string& file, std::size_t take) override {
    device_->play(*waves_.at(file).at(take));
  }

 private:
  Device device_;
  std::filesystem::path folder_;
  SdlMixerDevice::Lease lease_;
  std::map<std::string, std::vector<Chunk>> waves_;
};

class SdlTunes : public devices::TunePlayer {
 public:
  SdlTunes(Device device, std::filesystem::path folder)
      : device_(std::move(device)), folder_(std::move(folder)) {}
  ~SdlTunes() override {
    SdlTunes::stop();
    SdlMixerDevice::leave_thread();
  }
  SdlTunes(const SdlTunes&) = delete;
  SdlTunes& operator=(const SdlTunes&) = delete;

  std::optional<double> play(const std::string& file) override {
    lease_ = device_->lease();
    if (!has_device()) return std::nullopt;
    double seconds = 0;
    tune_ = device_->load_tune(folder_ / file, seconds);
    if (tune_ == nullptr || !device_->play(*tune_)) return std::nullopt;
    return seconds;
  }
  bool has_device() override { return lease_ != nullptr && device_->plays_tunes(); }
  bool playing() override { return device_->tune_playing(); }
  void stop() override {
    tune_.reset();
    lease_.reset();
  }

 private:
  Device device_;
  std::filesystem::path folder_;
  SdlMixerDevice::Lease lease_;
  Tune tune_;
};

}  // namespace

devices::System sdl_system(const std::filesystem::path& folder, std::function<void()> beep) {
  const auto device = std::make_shared<SdlMixerDevice>();
  return {[=] { return std::make_unique<SdlWaves>(device, folder); },
          [=] { return std::make_unique<SdlTunes>(device, folder); }, std::move(beep),
          missing_soundfont};
}

}  // namespace tombrello::qt
