#include "qt/audio/sdl_media.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <utility>

#include "qt/audio/takes.h"

namespace tombrello::qt {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto kRest = 5s;          // silence after which the device is let go
constexpr auto kListening = 100ms;  // how late the end of a tune may be noticed
constexpr const char* kBeep = "sounds/beep.wav";

/// The notes of a tune ring out after its last event, some seconds at most. One whose notes
/// never end is stopped then.
Clock::time_point latest_end(double seconds) {
  constexpr double most = 24 * 3600;
  return Clock::now() +
         std::chrono::milliseconds(static_cast<long>(std::min(seconds, most) * 1e3)) + 10s;
}

/// The waves that were asked for, loaded once each, with their other takes.
class Waves {
 public:
  Waves(SdlMixerDevice& device, const std::filesystem::path& folder, std::minstd_rand& chance)
      : device_(device), folder_(folder), chance_(chance) {}
  ~Waves() {
    const auto still = device_.hold_still();
    waves_.clear();
  }
  Waves(const Waves&) = delete;
  Waves& operator=(const Waves&) = delete;

  // Both rely on a lease.
  bool load(const std::string& file) { return !get(file).takes.empty(); }
  void serve(const SdlWave::Job& job) {
    Wave& wave = get(job.file);
    if (wave.takes.empty() || !job.play) return;
    wave.last = next_take(wave.takes.size(), wave.last, chance_);
    device_.play(*wave.takes[wave.last]);
  }

 private:
  struct Wave {
    std::vector<Chunk> takes;
    std::size_t last = 0;
  };

  Wave& get(const std::string& file) {
    const auto [place, fresh] = waves_.try_emplace(file);
    auto& takes = place->second.takes;
    for (int take = 1; fresh && take <= kMostTakes; ++take) {
      Chunk chunk = device_.load_wave(folder_ / take_file(file, take));
      if (chunk == nullptr) break;
      takes.push_back(std::move(chunk));
    }
    return place->second;
  }

  SdlMixerDevice& device_;
  const std::filesystem::path& folder_;
  std::minstd_rand& chance_;
  std::map<std::string, Wave> waves_;
};

/// The one tune that plays.
class Player {
 public:
  Player(SdlMixerDevice& device, const std::filesystem::path& folder)
      : device_(device), folder_(folder) {}

  /// `kFailed` if it is the file's fault that nothing plays, otherwise 0.
  int start(const std::string& file) {
    stop();
    if (!file.empty()) lease_ = device_.lease();
    if (lease_ == nullptr || !device_.plays_tunes()) return 0;
    double seconds = 0;
    tune_ = device_.load_tune(folder_ / file, seconds);
    latest_end_ = latest_end(seconds);
    if (tune_ != nullptr && device_.play(*tune_)) return 0;
    stop();
    return MediaEvents::kFailed;
  }

  bool playing() const { return tune_ != nullptr; }

  /// True once, when the tune has come to its end.
  bool came_to_end() {
    if (!playing() || (device_.tune_playing() && Clock::now() < latest_end_)) return false;
    stop();
    return true;
  }

 private:
  void stop() {
    tune_.reset();
    lease_.reset();
  }

  SdlMixerDevice& device_;
  const std::filesystem::path& folder_;
  SdlMixerDevice::Lease lease_;
  Tune tune_;
  Clock::time_point latest_end_{};
};

}  // namespace

void MediaBox::ask_to_leave() {
  const std::lock_guard lock(mutex);
  leaving = true;
  changed.notify_all();
}

void MediaBox::await_finish(Clock::time_point latest) {
  std::unique_lock lock(mutex);
  changed.wait_until(lock, latest, [this] { return finished; });
}

void MediaBox::finish() {
  const std::lock_guard lock(mutex);
  finished = true;
  changed.notify_all();
}

SdlWave::SdlWave(std::function<void()> system_beep, unsigned seed)
    : system_beep_(std::move(system_beep)) {
  box_->chance.seed(seed);
}

void SdlWave::command(Command command) {
  switch (command) {
    case Command::open:
      opened_ = file_name_;
      post({opened_, false});
      break;
    case Command::close:
      opened_.clear();
      break;
    case Command::play:
      if (!opened_.empty()) post({opened_, true});
      break;
  }
}

void SdlWave::beep() {
  const bool heard = [this] {
    const std::lock_guard lock(box_->mutex);
    return box_->beeps && !box_->finished;
  }();
  if (heard) return post({kBeep, true});
  if (system_beep_) system_beep_();
}

void SdlWave::post(Job job) {
  const std::lock_guard lock(box_->mutex);
  auto& jobs = box_->jobs;
  if (box_->finished || std::find(jobs.begin(), jobs.end(), job) != jobs.end()) return;
  jobs.push_back(std::move(job));
  box_->changed.notify_all();
}

void SdlWave::serve(Box& box, SdlMixerDevice& device, const std::filesystem::path& folder) {
  auto lease = device.lease();
  if (lease == nullptr) return;
  Waves waves(device, folder, box.chance);
  const bool beeps = waves.load(kBeep);
  std::unique_lock lock(box.mutex);
  box.beeps = beeps;
  const auto called = [&] { return box.leaving || !box.jobs.empty(); };
  for (;;) {
    if (lease != nullptr && !box.changed.wait_for(lock, kRest, called)) {
      lock.unlock();
      lease.reset();
      lock.lock();
    }
    box.changed.wait(lock, called);
    if (box.leaving) return;
    const auto jobs = std::exchange(box.jobs, {});
    lock.unlock();
    if (lease == nullptr) lease = device.lease();
    if (lease != nullptr) {
      for (const Job& job : jobs) waves.serve(job);
    }
    lock.lock();
    box.beeps = beeps && lease != nullptr;
  }
}

SdlSequencer::SdlSequencer(std::function<void()> wake) {
  box_->wake = std::move(wake);
}

void SdlSequencer::command(Command command) {
  switch (command) {
    case Command::open:
      opened_ = file_name_;
      break;
    case Command::close:
      opened_.clear();
      want({});
      break;
    case Command::play:
      if (!opened_.empty()) want(opened_);
      break;
  }
}

std::string SdlSequencer::missing_package() const {
  return SdlMixerDevice::has_soundfont() ? "" : "timgm6mb-soundfont";
}

void SdlSequencer::want(const std::string& file) {
  const std::lock_guard lock(box_->mutex);
  ++box_->number;
  box_->file = file;
  box_->changed.notify_all();
}

int SdlSequencer::take_done() {
  const std::lock_guard lock(box_->mutex);
  const bool of_last = std::exchange(box_->done, 0) == box_->number && box_->number != 0;
  return of_last ? box_->code : 0;
}

// Listens to whether the tune still plays instead of being told: the mixer tells it under locks
// of its own, to one listener in a process, and also when a tune is only stopped.
void SdlSequencer::serve(Box& box, SdlMixerDevice& device, const std::filesystem::path& folder) {
  Player player(device, folder);
  int served = 0;
  std::unique_lock lock(box.mutex);
  for (;;) {
    const auto called = [&] { return box.leaving || box.number != served; };
    if (player.playing()) {
      box.changed.wait_for(lock, kListening, called);
    } else {
      box.changed.wait(lock, called);
    }
    if (box.leaving) return;
    const bool wanted = box.number != served;
    const std::string file = box.file;
    served = box.number;
    lock.unlock();
    const int code = wanted ? player.start(file) : player.came_to_end() ? MediaEvents::kEnded : 0;
    lock.lock();
    if (code == 0) continue;
    box.done = served;
    box.code = code;
    if (box.wake && !box.leaving) box.wake();
  }
}

}  // namespace tombrello::qt
