// Whatever is typed or pasted into a field of a name becomes a name that the settings file can
// hold and that can be printed letter by letter.

#include <utf8.h>

#include "fuzz/fuzz.h"
#include "headless/headless_window.h"
#include "shell/field_reader.h"
#include "shell/player_name.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tombrello;
  const std::string typed = bytes_of(data, size);
  const int already = size > 0 ? data[0] % 9 : 0;
  const std::string allowed = allowed_in_name(typed, already);
  must(allowed_in_name(allowed, already) == allowed, "what was taken is taken again");
  must(already > kMostNameCharacters
           ? allowed.empty()
           : utf8::distance(allowed.begin(), allowed.end()) + already <= kMostNameCharacters,
       "too many characters");
  const std::string name = name_from_typed(typed, plain_capital);
  must(is_storable_name(name), "a name that can't be stored");
  must(name_from_typed(name, plain_capital) == name, "a name that changes when typed again");
  const std::string file = name + "\r\nnext\r\n";
  FieldReader fields(file);
  must(fields.text() == without_outer_blanks(name) || name.empty(), "the file reads another name");
  must(fields.text() == "next", "a name that takes more than its line");
  must(utf8::is_valid(as_utf8(typed)), "text that is no UTF-8");
  return 0;
}
