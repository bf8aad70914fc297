#include "devices/sequencer.h"

#include <algorithm>
#include <utility>

namespace tombrello::devices {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto kListening = 100ms;  // how late the end of a tune may be noticed

/// The one tune that plays.
class Play {
 public:
  explicit Play(TunePlayer& player) : player_(player) {}

  /// `kFailed` if it is the file's fault that nothing plays, otherwise 0.
  int start(const std::string& file) {
    stop();
    if (file.empty()) return 0;
    const std::optional<double> seconds = player_.play(file);
    if (!seconds) {
      const int code = player_.has_device() ? MediaEvents::kFailed : 0;
      stop();
      return code;
    }
    // The notes of a tune ring out after its last event, some seconds at most. One whose notes
    // never end, or of which the device says so, is stopped then.
    const double most = std::min(*seconds, 24.0 * 3600);
    latest_end_ =
        Clock::now() + std::chrono::milliseconds(static_cast<long long>(most * 1e3)) + 10s;
    going_ = true;
    return 0;
  }

  bool going() const { return going_; }

  /// True once, when the tune has come to its end.
  bool came_to_end() {
    if (!going_ || (player_.playing() && Clock::now() < latest_end_)) return false;
    stop();
    return true;
  }

 private:
  void stop() {
    player_.stop();
    going_ = false;
  }

  TunePlayer& player_;
  bool going_ = false;
  Clock::time_point latest_end_{};
};

}  // namespace

Sequencer::Sequencer(std::function<void()> wake, std::string (*missing)())
    : missing_package_(missing) {
  box_->wake = std::move(wake);
}

void Sequencer::command(Command command) {
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

void Sequencer::want(const std::string& file) {
  const std::lock_guard lock(box_->mutex);
  ++box_->number;
  box_->file = file;
  box_->changed.notify_all();
}

int Sequencer::take_done() {
  const std::lock_guard lock(box_->mutex);
  const bool of_last = std::exchange(box_->done, 0) == box_->number && box_->number != 0;
  return of_last ? box_->code : 0;
}

// Listens to whether the tune still plays instead of being told: a mixer tells it under locks of
// its own, to one listener in a process, and also when a tune is only stopped; a media control
// without a device tells nothing.
void Sequencer::serve(Box& box, TunePlayer& player) {
  Play play(player);
  int served = 0;
  std::unique_lock lock(box.mutex);
  for (;;) {
    const auto called = [&] { return box.leaving || box.number != served; };
    if (play.going()) {
      box.changed.wait_for(lock, kListening, called);
    } else {
      box.changed.wait(lock, called);
    }
    if (box.leaving) return;
    const bool wanted = box.number != served;
    const std::string file = box.file;
    served = box.number;
    lock.unlock();
    const int code = wanted ? play.start(file) : play.came_to_end() ? MediaEvents::kEnded : 0;
    lock.lock();
    if (code == 0) continue;
    box.done = served;
    box.code = code;
    if (box.wake && !box.leaving) box.wake();
  }
}

}  // namespace tombrello::devices
