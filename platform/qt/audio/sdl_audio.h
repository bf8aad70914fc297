#pragma once

#include <filesystem>
#include <functional>

#include "devices/audio.h"

namespace tombrello::qt {

/// The sound of the desktop: one device with a mixer, on which waves and tunes meet.
class SdlAudio : public devices::Audio {
 public:
  /// Files are found under `folder`. `system_beep` is what the game's thread calls for a beep
  /// while, or where, there is no audio. `wake` and `seed` are as for `Audio`.
  SdlAudio(const std::filesystem::path& folder, std::function<void()> wake,
           std::function<void()> system_beep, unsigned seed);
};

}  // namespace tombrello::qt
