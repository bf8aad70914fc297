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

Wave::Wave(std::function<void()> wake, std::function<void()> system_beep, unsigned seed)
    : system_beep_(std::move(system_beep)) {
  box_->wake = std::move(wake);
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

// Whether the first can be heard turns out when it is to be; one right after it doesn't wait for
// that.
void Wave::beep() {
  const bool heard = [this] {
    const std::lock_guard lock(box_->mutex);
    const bool hopeful = box_->beep != Beep::missing && !box_->finished;
    if (box_->beep == Beep::untried) box_->beep = Beep::missing;
    return hopeful;
  }();
  if (heard) return post({kBeep, true});
  if (system_beep_) system_beep_();
}

// A file that is only opened is no reason to have a device.
bool Wave::Box::asked() const {
  return std::any_of(jobs.begin(), jobs.end(), [](const Job& job) { return job.play; });
}

void Wave::Box::miss(const std::vector<Job>& missed) {
  if (std::find(missed.begin(), missed.end(), Job{kBeep, true}) == missed.end()) return;
  beep_lost = true;
  try {
    if (wake) wake();
  } catch (const std::exception&) {
    // Out of memory: it is delivered with the next one.
  }
}

void Wave::post(Job job) {
  const std::lock_guard lock(box_->mutex);
  auto& jobs = box_->jobs;
  if (box_->finished || std::find(jobs.begin(), jobs.end(), job) != jobs.end()) return;
  jobs.push_back(std::move(job));
  box_->changed.notify_all();
}

void Wave::deliver() {
  const bool lost = [this] {
    const std::lock_guard lock(box_->mutex);
    return std::exchange(box_->beep_lost, false);
  }();
  if (lost && system_beep_) system_beep_();
}

void Wave::serve(Box& box, WavePlayer& player) {
  bool awake = false;
  bool stood = false;
  std::map<std::string, std::size_t> last;  // take of each sound
  std::unique_lock lock(box.mutex);
  const auto called = [&] { return box.leaving || box.asked(); };
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
    stood = stood || awake;
    const bool beeps = awake && player.takes(kBeep) > 0;
    for (const Job& job : jobs) {
      const std::size_t takes = awake ? player.takes(job.file) : 0;
      if (takes == 0 || !job.play) continue;
      auto& take = last[job.file];
      take = next_take(takes, std::min(take, takes - 1), box.chance);
      player.play(job.file, take);
    }
    lock.lock();
    box.beep = beeps ? Beep::heard : Beep::missing;
    if (!beeps) box.miss(jobs);
    if (!stood) return;  // that is found out once
  }
}

}  // namespace tombrello::devices
