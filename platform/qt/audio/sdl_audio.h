#pragma once

#include <filesystem>
#include <functional>

#include "devices/audio.h"

namespace tombrello::qt {

/// The sound of the desktop: one device with a mixer, on which waves and tunes meet. Files are
/// found under `folder`. `beep` is what the game's thread calls for a beep where there is no audio.
devices::System sdl_system(const std::filesystem::path& folder, std::function<void()> beep);

}  // namespace tombrello::qt
