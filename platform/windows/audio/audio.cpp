#include "windows/audio/audio.h"

#include <exception>
#include <system_error>
#include <thread>
#include <utility>

namespace tombrello::windows {
namespace {

constexpr auto kPatience = std::chrono::milliseconds(500);

// The thread is on its own from the start: joining it could wait for a device for ever.
template <class Media>
void run(const std::shared_ptr<typename Media::Box>& box, const std::wstring& folder) {
  try {
    std::thread([box, folder] {
      try {
        Media::serve(*box, folder);
      } catch (const std::exception&) {
        // Out of memory: from here on it is silent.
      }
      box->finish();
    }).detach();
  } catch (const std::system_error&) {
    box->finish();
  }
}

}  // namespace

Audio::Audio(std::wstring folder, std::function<void()> wake)
    : folder_(std::move(folder)), sequencer_(std::move(wake)) {}

Audio::~Audio() {
  {
    const std::lock_guard lock(sequencer_.box()->mutex);
    sequencer_.box()->wake = nullptr;
  }
  if (!started_) return;
  sequencer_.box()->ask_to_leave();
  wave_.box()->ask_to_leave();
  const auto latest = std::chrono::steady_clock::now() + kPatience;
  sequencer_.box()->await_finish(latest);
  wave_.box()->await_finish(latest);
}

void Audio::start() {
  if (std::exchange(started_, true)) return;
  run<Wave>(wave_.box(), folder_);
  run<Sequencer>(sequencer_.box(), folder_);
}

void Audio::deliver() {
  if (sequencer_.take_end() && events_ != nullptr) events_->media_done(1);
}

}  // namespace tombrello::windows
