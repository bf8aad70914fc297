#include "shell/field_reader.h"

#include <utf8.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace tombrello {

void FieldReader::skip_blanks() {
  while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == '\t')) rest_.remove_prefix(1);
}

std::string_view FieldReader::take_until(std::string_view ends) {
  const std::size_t length = std::min(rest_.find_first_of(ends), rest_.size());
  const std::string_view taken = rest_.substr(0, length);
  rest_.remove_prefix(length);
  return taken;
}

void FieldReader::skip_end_of_field() {
  skip_blanks();
  if (rest_.starts_with("\r\n")) {
    rest_.remove_prefix(2);
  } else if (!rest_.empty() && (rest_[0] == ',' || rest_[0] == '\r' || rest_[0] == '\n')) {
    rest_.remove_prefix(1);
  }
}

std::optional<std::string> FieldReader::text() {
  skip_blanks();
  if (rest_.empty()) return std::nullopt;
  std::string_view taken;
  if (rest_.front() == '"') {
    rest_.remove_prefix(1);
    taken = take_until("\"");
    if (!rest_.empty()) rest_.remove_prefix(1);
  } else {
    taken = take_until(",\r\n");
    while (!taken.empty() && (taken.back() == ' ' || taken.back() == '\t')) taken.remove_suffix(1);
  }
  skip_end_of_field();
  return std::string(taken);
}

std::optional<double> FieldReader::number() {
  skip_blanks();
  if (rest_.empty()) return std::nullopt;
  const std::string_view taken = take_until(" \t,\r\n");
  skip_end_of_field();
  if (taken.empty()) return 0;
  double value = 0;
  const auto [end, fault] = std::from_chars(taken.data(), taken.data() + taken.size(), value);
  if (fault != std::errc() || end != taken.data() + taken.size()) return std::nullopt;
  if (!std::isfinite(value)) return std::nullopt;
  return value;
}

namespace {

// Windows-1252 from 0x80 to 0x9F; what it leaves undefined becomes the replacement character.
constexpr std::array<char32_t, 32> kWindows1252 = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

}  // namespace

std::string as_utf8(std::string_view bytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";  // some editors put it in front
  while (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  if (utf8::is_valid(bytes)) return std::string(bytes);
  std::string text;
  for (const char byte : bytes) {
    const auto c = static_cast<unsigned char>(byte);
    const bool special = c >= 0x80 && c < 0xA0;
    utf8::append(special ? kWindows1252[static_cast<std::size_t>(c - 0x80)] : char32_t{c}, text);
  }
  return text;
}

}  // namespace tombrello
