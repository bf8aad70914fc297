#pragma once

#include <filesystem>

#include "devices/audio.h"

namespace tombrello::qt {

/// The library that plays; it lies beside the program, or where a system keeps libraries.
inline constexpr const char* kSoundModule = "tombrello-sound.so";
inline constexpr const char* kSoundEntry = "tombrello_sound";

/// What that library is asked for under that name: `system` becomes what `sdl_system` answers, if
/// the program is of the same `version`. One that was upgraded meanwhile may be laid out otherwise.
extern "C" void tombrello_sound(const char* version, const std::filesystem::path& folder,
                                devices::System& system);

}  // namespace tombrello::qt
