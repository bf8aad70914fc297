#pragma once

#include <string>

#include "cards/events.h"

namespace tombrello {

/// Why cards dropped back, as a friend at the table would say it.
std::string sentence_of(Refusal why, Cards cards, Cards meld);

}  // namespace tombrello
