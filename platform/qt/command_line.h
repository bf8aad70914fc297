#pragma once

#include <optional>

namespace tombrello::qt {

/// Answers `--version` and `--help` on standard output, and refuses what it doesn't know in one
/// line on standard error; needs no screen. Returns the status to end with, or nothing where the
/// game is to start. What a session manager hands back to a program, `-session ID`, passes.
std::optional<int> answer_command_line(int argc, const char* const* argv, const char* version);

}  // namespace tombrello::qt
