#pragma once

#include <string>
#include <string_view>

namespace tombrello::windows {

/// What can't be told in the other form becomes U+FFFD.
std::wstring wide(std::string_view utf8);
std::string utf8(std::wstring_view wide);

/// As `Capital`, by the system's tables of letters.
char32_t capital(char32_t letter);

}  // namespace tombrello::windows
