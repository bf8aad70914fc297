#include "qt/audio/soundfont.h"

#include <filesystem>

namespace tombrello::qt {
namespace {

// The small ones first: a font is loaded anew with each tune.
constexpr const char* kSoundfonts[] = {
    "/usr/share/sounds/sf2/TimGM6mb.sf2",   "/usr/share/soundfonts/TimGM6mb.sf2",
    "/usr/share/sounds/sf2/default-GM.sf2", "/usr/share/soundfonts/default.sf2",
    "/usr/share/sounds/sf2/FluidR3_GM.sf2", "/usr/share/soundfonts/FluidR3_GM.sf2",
    "/usr/share/sounds/sf3/default-GM.sf3",
};

}  // namespace

const char* find_soundfont() {
  for (const char* font : kSoundfonts) {
    std::error_code error;
    if (std::filesystem::is_regular_file(font, error)) return font;
  }
  return nullptr;
}

std::string missing_soundfont() {
  return find_soundfont() != nullptr ? "" : "timgm6mb-soundfont";
}

}  // namespace tombrello::qt
