#include "devices/wave.h"

#include <algorithm>
#include <map>
#include <utility>

#include "devices/takes.h"

namespace tombrello::devices {
namespace {

constexpr auto kRest = std::chrono::seconds(5);  // silence after which the device is let go
constexpr const char* kBeep = "sounds/beep.wav";

}  // namespace

Wave::Wave(std::function<void()> system_beep, unsigned seed)
    : system_beep_(std::move(system_beep)) {
  box_->chance.seed(seed);
}

void Wave::command(Command command) {
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

void Wave::beep() {
  const bool heard = [this] {
    const std::lock_guard lock(box_->mutex);
    return box_->beeps && !box_->finished;
  }();
  if (heard) return post({kBeep, true});
  if (system_beep_) system_beep_();
}

void Wave::post(Job job) {
  const std::lock_guard lock(box_->mutex);
  auto& jobs = box_->jobs;
  if (box_->finished || std::find(jobs.begin(), jobs.end(), job) != jobs.end()) return;
  jobs.push_back(std::move(job));
  box_->changed.notify_all();
}

void Wave::serve(Box& box, WavePlayer& player) {
  if (!player.wake()) return;
  bool awake = true;
  bool beeps = player.takes(kBeep) > 0;
  std::map<std::string, std::size_t> last;  // take of each sound
  std::unique_lock lock(box.mutex);
  box.beeps = beeps;
  const auto called = [&] { return box.leaving || !box.jobs.empty(); };
  for (;;) {
    if (awake && !box.changed.wait_for(lock, kRest, called)) {
      lock.unlock();
      player.rest();
      awake = false;
      lock.lock();
    }
    box.changed.wait(lock, called);
    if (box.leaving) return;
    const auto jobs = std::exchange(box.jobs, {});
    lock.unlock();
    if (!awake) awake = player.wake();
    if (awake) beeps = player.takes(kBeep) > 0;
    for (const Job& job : jobs) {
      const std::size_t takes = awake ? player.takes(job.file) : 0;
      if (takes == 0 || !job.play) continue;
      auto& take = last[job.file];
      take = next_take(takes, std::min(take, takes - 1), box.chance);
      player.play(job.file, take);
    }
    lock.lock();
    box.beeps = beeps && awake;
  }
}

}  // namespace tombrello::devices
