#pragma once

#include <filesystem>
#include <string>

#include "seam/archive.h"

namespace tombrello::qt {

/// Puts a file in the place of the old one, or of what a link there leads to: whole or not at
/// all, whenever the process or the power ends. It is written beside the old one under a name
/// that begins with the old one's and ".new", and what such a save left that was cut off goes
/// with the next one. Its owner may read and write it, whatever the umask says; other rights are
/// those of the old file.
///
/// The signal SIGXFSZ has to be ignored, or a limit on the size of files ends the process.
Trouble put_whole(const std::filesystem::path& place, const std::string& content);

}  // namespace tombrello::qt
