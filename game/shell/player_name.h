#pragma once

#include <string>

namespace tombrello {

inline constexpr int kMostNameCharacters = 7;

/// A name as the settings file can hold it: at most seven characters, no comma, double quote or
/// control character.
bool is_storable_name(const std::string& utf8);

std::string without_outer_blanks(const std::string& text);

/// What was typed as the table shows it: in capitals, without outer blanks. It has no more
/// characters than the text.
std::string name_from_typed(const std::string& utf8);

}  // namespace tombrello
