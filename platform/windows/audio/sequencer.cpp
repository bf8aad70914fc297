#include "windows/audio/sequencer.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

#include "windows/audio/mci.h"
#include "windows/disk_archive.h"

namespace tombrello::windows {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto kListening = 100ms;  // how late the end of a tune may be noticed

/// The one tune that plays.
class Player {
 public:
  explicit Player(const std::wstring& folder) : folder_(folder) {}

  void start(const std::string& file) {
    tune_.reset();
    if (file.empty()) return;
    tune_.emplace(path_in(folder_, file), L"sequencer");
    if (!tune_->play()) return tune_.reset();
    const double most = std::min(tune_->seconds(), 24.0 * 3600);
    latest_end_ =
        Clock::now() + std::chrono::milliseconds(static_cast<long long>(most * 1e3)) + 10s;
  }

  bool playing() const { return tune_.has_value(); }

  /// True once, when the tune has come to its end. A device that never says so is stopped.
  bool came_to_end() {
    if (!playing() || (tune_->playing() && Clock::now() < latest_end_)) return false;
    tune_.reset();
    return true;
  }

 private:
  const std::wstring& folder_;
  std::optional<MciFile> tune_;
  Clock::time_point latest_end_{};
};

}  // namespace

Sequencer::Sequencer(std::function<void()> wake) {
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

bool Sequencer::take_end() {
  const std::lock_guard lock(box_->mutex);
  return std::exchange(box_->ended, 0) == box_->number && box_->number != 0;
}

void Sequencer::serve(Box& box, const std::wstring& folder) {
  Player player(folder);
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
    if (wanted) player.start(file);
    const bool ended = !wanted && player.came_to_end();
    lock.lock();
    if (!ended) continue;
    box.ended = served;
    if (box.wake && !box.leaving) box.wake();
  }
}

}  // namespace tombrello::windows
