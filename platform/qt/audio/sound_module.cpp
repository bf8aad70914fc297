#include "qt/audio/sound_module.h"

#include <string_view>

#include "qt/audio/sdl_audio.h"

namespace tombrello::qt {

void tombrello_sound(const char* version, const std::filesystem::path& folder,
                     devices::System& system) {
  if (std::string_view(version) == TOMBRELLO_VERSION) system = sdl_system(folder, nullptr);
}

}  // namespace tombrello::qt
