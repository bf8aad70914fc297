#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tombrello {

/// Takes fields from the text of a settings file, one after the other: blanks before a field are
/// skipped; a number ends at a blank, a comma or the line's end, a text at a comma or the line's
/// end, and a text that starts with a double quote at the next one. Past the end there are no
/// fields.
class FieldReader {
 public:
  explicit FieldReader(std::string_view text) : rest_(text) {}

  std::optional<std::string> text();
  /// Nothing also for a field that is no number; an empty line gives 0.
  std::optional<double> number();

 private:
  std::string_view take_until(std::string_view ends);
  void skip_blanks();
  void skip_end_of_field();

  std::string_view rest_;
};

/// The text itself if it is UTF-8, or else its bytes read as Windows-1252.
std::string as_utf8(std::string_view bytes);

}  // namespace tombrello
