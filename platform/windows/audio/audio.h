#pragma once

#include <string>

#include "devices/audio.h"

namespace tombrello::windows {

/// The sounds and tunes under a folder, by the system's media control.
devices::System mci_system(const std::wstring& folder);

}  // namespace tombrello::windows
