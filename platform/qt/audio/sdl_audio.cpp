#include "qt/audio/sdl_audio.h"

#include <system_error>
#include <thread>
#include <utility>

namespace tombrello::qt {
namespace {

constexpr auto kPatience = std::chrono::milliseconds(500);

// The thread is on its own from the start: joining it could wait for an audio server for ever.
template <class Media>
void run(const std::shared_ptr<typename Media::Box>& box, std::shared_ptr<SdlMixerDevice> device,
         const std::filesystem::path& folder) {
  try {
    std::thread([box, device, folder]() mutable {
      try {
        Media::serve(*box, *device, folder);
      } catch (const std::exception&) {
        // Out of memory: from here on it is silent.
      }
      SdlMixerDevice::leave_thread();
      device.reset();
      box->finish();
    }).detach();
  } catch (const std::system_error&) {
    box->finish();
  }
}

}  // namespace

SdlAudio::SdlAudio(std::filesystem::path folder, std::function<void()> wake,
                   std::function<void()> system_beep, unsigned seed)
    : folder_(std::move(folder)),
      wave_(std::move(system_beep), seed),
      sequencer_(std::move(wake)) {}

SdlAudio::~SdlAudio() {
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

void SdlAudio::start() {
  if (std::exchange(started_, true)) return;
  const auto device = std::make_shared<SdlMixerDevice>();
  run<SdlWave>(wave_.box(), device, folder_);
  run<SdlSequencer>(sequencer_.box(), device, folder_);
}

void SdlAudio::deliver() {
  const int code = sequencer_.take_done();
  if (code != 0 && events_ != nullptr) events_->media_done(code);
}

}  // namespace tombrello::qt
