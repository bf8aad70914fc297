#pragma once

#include <string>

#include "cards/events.h"

namespace tombrello {

/// "10♠", as the chronicle writes a card; a bare code 1..104.
std::string short_name(int card);
/// "Dieci di picche", as it is read out.
std::string long_name(int card);
/// "6♥ 7♥ 8♥".
std::string short_names(Cards cards);
/// "Scala di fiori dal 6 all'8", "Tris di Re", "Poker di 9": a meld as it lies on the table.
std::string meld_name(Cards meld);

}  // namespace tombrello
