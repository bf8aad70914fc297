#pragma once

#include "cards/state.h"

namespace tombrello {

/// True if no seat can ever go out any more: no card in play fits a meld on the table, and no seat
/// holds enough cards for a new one. Asked between turns; once true it stays so for the hand.
bool nobody_can_go_out(const State& state);

}  // namespace tombrello
