#pragma once

#include <string>

namespace tombrello::qt {

/// A soundfont that is installed, without which no tune can be heard; null if none is. For any
/// thread.
const char* find_soundfont();

/// What to install so that there is one; empty if there is.
std::string missing_soundfont();

}  // namespace tombrello::qt
