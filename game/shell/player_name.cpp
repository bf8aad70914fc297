#include "shell/player_name.h"

#include <algorithm>
#include <cwchar>
#include <locale>
#include <stdexcept>

namespace tombrello {
namespace {

using Codec = std::codecvt<wchar_t, char, std::mbstate_t>;

// The letters of the whole world where the system knows them, or else those of ASCII.
std::locale letters() {
  try {
    return std::locale("C.UTF-8");
  } catch (const std::runtime_error&) {
    return std::locale::classic();
  }
}

std::string in_capitals(std::string utf8) {
  const std::locale locale = letters();
  const auto& codec = std::use_facet<Codec>(locale);
  std::use_facet<std::ctype<char>>(std::locale::classic())
      .toupper(utf8.data(), utf8.data() + utf8.size());

  std::wstring wide(utf8.size(), L'\0');
  std::mbstate_t state{};
  const char* read = nullptr;
  wchar_t* wide_end = nullptr;
  if (codec.in(state, utf8.data(), utf8.data() + utf8.size(), read, wide.data(),
               wide.data() + wide.size(), wide_end) != Codec::ok) {
    return utf8;
  }
  std::use_facet<std::ctype<wchar_t>>(locale).toupper(wide.data(), wide_end);

  std::string capitals(wide.size() * static_cast<std::size_t>(codec.max_length()), '\0');
  const wchar_t* wide_read = nullptr;
  char* end = nullptr;
  state = {};
  if (codec.out(state, wide.data(), wide_end, wide_read, capitals.data(),
                capitals.data() + capitals.size(), end) != Codec::ok) {
    return utf8;
  }
  capitals.resize(static_cast<std::size_t>(end - capitals.data()));
  return capitals;
}

// Also the control characters from U+0080 to U+009F, 0xC2 and a byte below 0xA0 in UTF-8.
bool holds_control_character(const std::string& utf8) {
  unsigned char before = 0;
  return std::any_of(utf8.begin(), utf8.end(), [&before](char character) {
    const auto c = static_cast<unsigned char>(character);
    const bool control = c < 0x20 || c == 0x7F || (before == 0xC2 && c < 0xA0);
    before = c;
    return control;
  });
}

}  // namespace

bool is_storable_name(const std::string& utf8) {
  auto starts_character = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
  return std::count_if(utf8.begin(), utf8.end(), starts_character) <= kMostNameCharacters &&
         utf8.find_first_of(",\"") == std::string::npos && !holds_control_character(utf8);
}

std::string without_outer_blanks(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string name_from_typed(const std::string& utf8) {
  return without_outer_blanks(in_capitals(utf8));
}

}  // namespace tombrello
