#include "devices/audio.h"

#include <system_error>
#include <thread>
#include <utility>

namespace tombrello::devices {
namespace {

constexpr auto kPatience = std::chrono::milliseconds(500);

// The thread is on its own from the start: joining it could wait for a device for ever.
template <class Device, class Make>
void run(const std::shared_ptr<typename Device::Box>& box, Make make) {
  try {
    std::thread([box, make = std::move(make)]() mutable {
      try {
        if (box->await_call()) {
          if (const auto player = make()) Device::serve(*box, *player);
        }
      } catch (const std::exception&) {
        // Out of memory: from here on it is silent.
      }
      make = nullptr;  // and what it holds
      box->finish();
    }).detach();
  } catch (const std::system_error&) {
    box->finish();
  }
}

}  // namespace

Audio::Audio(System system, std::function<void()> wake, unsigned seed)
    : system_(std::move(system)),
      wave_(wake, std::move(system_.beep), seed),
      sequencer_(std::move(wake), system_.missing_package) {}

Audio::~Audio() {
  sequencer_.box()->ask_to_leave();
  wave_.box()->ask_to_leave();
  if (!started_) return;
  const auto latest = std::chrono::steady_clock::now() + kPatience;
  sequencer_.box()->await_finish(latest);
  wave_.box()->await_finish(latest);
}

void Audio::start() {
  if (std::exchange(started_, true)) return;
  run<Wave>(wave_.box(), std::exchange(system_.waves, nullptr));
  run<Sequencer>(sequencer_.box(), std::exchange(system_.tunes, nullptr));
}

void Audio::deliver() {
  wave_.deliver();
  const int code = sequencer_.take_done();
  if (code != 0 && events_ != nullptr) events_->media_done(code);
}

}  // namespace tombrello::devices
