#include "qt/command_line.h"

#include <cstdio>
#include <string_view>

namespace tombrello::qt {
namespace {

constexpr const char* kHelp =
    "Usage: tombrello [--help | --version]\n"
    "\n"
    "A partnership rummy for four, played in a window by one person and three computer seats.\n"
    "\n"
    "  --help     say this and end\n"
    "  --version  say the version and end\n";

}  // namespace

std::optional<int> answer_command_line(int argc, const char* const* argv, const char* version) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view word = argv[i];
    if (word == "-session") {
      ++i;
    } else if (word == "--version") {
      std::printf("tombrello %s\n", version);
      return 0;
    } else if (word == "--help") {
      std::fputs(kHelp, stdout);
      return 0;
    } else {
      std::fprintf(stderr, "tombrello: unknown option '%s'; --help tells which there are\n",
                   argv[i]);
      return 2;
    }
  }
  return std::nullopt;
}

}  // namespace tombrello::qt
