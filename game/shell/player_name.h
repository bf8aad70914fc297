#pragma once

#include <string>

#include "seam/capital.h"

namespace tombrello {

/// Letters of a name, in a field, in the files and on the table.
inline constexpr int kMostNameCharacters = 7;

/// What of a UTF-8 text may stand in a name in which so many characters stand already: at most
/// seven in all; no comma or double quote, which would end the field of the settings file, no
/// control character, and none that shows nothing.
std::string allowed_in_name(const std::string& utf8, int characters_already);

/// A name that a field could hold, and the settings file with it.
bool is_storable_name(const std::string& utf8);

std::string without_outer_blanks(const std::string& text);

/// What was typed as the table shows it: what may stand in a name, in capitals, without outer
/// blanks. A letter whose capital would be two, such as "ß", stays one.
std::string name_from_typed(const std::string& utf8, Capital capital);

}  // namespace tombrello
