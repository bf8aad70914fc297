#pragma once

#include "pictures/suits.h"

namespace tombrello::art {

/// The suit's belt over the seam of a court card; it looks the same after a half turn.
void add_belt(Drawing& face, Suit suit);

}  // namespace tombrello::art
