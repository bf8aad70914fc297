#include "qt/audio/loaded_system.h"

#include <dlfcn.h>

#include <mutex>
#include <utility>

#include "qt/audio/sound_module.h"
#include "qt/audio/soundfont.h"

namespace tombrello::qt {
namespace {

/// Any thread may ask for the players.
class Module {
 public:
  Module(std::filesystem::path file, std::filesystem::path folder)
      : file_(std::move(file)), folder_(std::move(folder)) {}

  const devices::System& players() {
    std::call_once(once_, [this] { load(); });
    return players_;
  }

 private:
  // What is loaded stays to the end: a thread that a device keeps from ending still runs in it.
  void load() {
    void* const library = dlopen(file_.c_str(), RTLD_LAZY | RTLD_LOCAL | RTLD_NODELETE);
    if (library == nullptr) return;
    const auto entry = reinterpret_cast<decltype(&tombrello_sound)>(dlsym(library, kSoundEntry));
    if (entry != nullptr) entry(TOMBRELLO_VERSION, folder_, players_);
  }

  std::filesystem::path file_;
  std::filesystem::path folder_;
  std::once_flag once_;
  devices::System players_;
};

}  // namespace

devices::System loaded_system(const std::filesystem::path& module,
                              const std::filesystem::path& folder, std::function<void()> beep) {
  const auto loaded = std::make_shared<Module>(module, folder);
  return {[=] { return loaded->players().waves ? loaded->players().waves() : nullptr; },
          [=] { return loaded->players().tunes ? loaded->players().tunes() : nullptr; },
          std::move(beep), missing_soundfont};
}

}  // namespace tombrello::qt
