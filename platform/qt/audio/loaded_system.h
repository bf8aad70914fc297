#pragma once

#include <filesystem>
#include <functional>

#include "devices/audio.h"

namespace tombrello::qt {

/// As `sdl_system`, by the library in the file `module`, which is loaded when something is to be
/// heard for the first time: it brings some forty others with it, for which neither a silent game
/// nor the first picture has to wait. Where it can't be loaded, or is another version's by then,
/// there is no audio. A process that ends waits for a loading that is under way.
devices::System loaded_system(const std::filesystem::path& module,
                              const std::filesystem::path& folder, std::function<void()> beep);

}  // namespace tombrello::qt
