#include "windows/strings.h"

#include <windows.h>

namespace tombrello::windows {

std::wstring wide(std::string_view utf8) {
  const int bytes = static_cast<int>(utf8.size());
  const int size = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
  std::wstring result(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, result.data(), size);
  return result;
}

std::string utf8(std::wstring_view wide) {
  const int units = static_cast<int>(wide.size());
  const int size =
      WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, result.data(), size, nullptr, nullptr);
  return result;
}

// Letters beyond the first 65536 are two units each, and so are their capitals.
char32_t capital(char32_t letter) {
  const bool pair = letter > 0xFFFF;
  const char32_t rest = letter - 0x10000;
  const wchar_t from[] = {static_cast<wchar_t>(pair ? 0xD800 + (rest >> 10) : letter),
                          static_cast<wchar_t>(0xDC00 + (rest & 0x3FF))};
  const int units = pair ? 2 : 1;
  wchar_t to[4] = {};
  const int size = LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE | LCMAP_LINGUISTIC_CASING,
                                 from, units, to, 4, nullptr, nullptr, 0);
  if (size != units) return letter;
  if (!pair) return to[0];
  return 0x10000 +
         ((static_cast<char32_t>(to[0]) & 0x3FF) << 10 | (static_cast<char32_t>(to[1]) & 0x3FF));
}

}  // namespace tombrello::windows
