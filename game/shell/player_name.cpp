#include "shell/player_name.h"

#include <utf8.h>

#include <algorithm>
#include <iterator>

namespace tombrello {
namespace {

struct Range {
  char32_t first;
  char32_t last;
};

// Control characters, and what joins, marks or turns a line without a sign of its own.
constexpr Range kUnseen[] = {{0, 0x1F},        {0x7F, 0x9F},     {0xAD, 0xAD},    {0x200B, 0x200F},
                             {0x2028, 0x202E}, {0x2060, 0x206F}, {0xFEFF, 0xFEFF}};

bool may_stand_in_name(char32_t c) {
  const auto holds = [c](Range range) { return range.first <= c && c <= range.last; };
  return c != U',' && c != U'"' && std::none_of(std::begin(kUnseen), std::end(kUnseen), holds);
}

}  // namespace

std::string allowed_in_name(const std::string& utf8, int characters_already) {
  std::string allowed;
  int room = kMostNameCharacters - characters_already;
  for (const char32_t c : utf8::utf8to32(utf8::replace_invalid(utf8))) {
    if (!may_stand_in_name(c)) continue;
    if (--room < 0) break;
    utf8::append(c, allowed);
  }
  return allowed;
}

bool is_storable_name(const std::string& utf8) {
  return allowed_in_name(utf8, 0) == utf8;
}

std::string without_outer_blanks(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string name_from_typed(const std::string& utf8, Capital capital) {
  std::u32string letters = utf8::utf8to32(allowed_in_name(utf8, 0));
  std::transform(letters.begin(), letters.end(), letters.begin(), capital);
  return without_outer_blanks(utf8::utf32to8(letters));
}

}  // namespace tombrello
