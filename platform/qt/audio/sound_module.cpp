#include "qt/audio/sound_module.h"

#include "qt/audio/sdl_audio.h"

namespace tombrello::qt {

void tombrello_sound(const std::filesystem::path& folder, devices::System& system) {
  system = sdl_system(folder, nullptr);
}

}  // namespace tombrello::qt
