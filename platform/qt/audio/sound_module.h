#pragma once

#include <filesystem>

#include "devices/audio.h"

namespace tombrello::qt {

/// The library that plays; it lies beside the program, or where a system keeps libraries.
inline constexpr const char* kSoundModule = "tombrello-sound.so";
inline constexpr const char* kSoundEntry = "tombrello_sound";

/// What that library is asked for under that name: `system` becomes what `sdl_system` answers.
extern "C" void tombrello_sound(const std::filesystem::path& folder, devices::System& system);

}  // namespace tombrello::qt
