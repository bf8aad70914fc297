#pragma once

#include <string_view>

#include "seam/drawing.h"

namespace tombrello::art {

/// The index of a rank, 1 (Ace) to 13 (King): narrow and bold, `height` units high, centred
/// between left and right at `middle`, from `top` down. Fills even-odd.
Path index_outline(int rank, float middle, float top, float height);

/// Fat-faced display letters on the baseline y 0, starting at x 0; `height` is that of the
/// capitals. Knows the letters of the game's two names. Fills even-odd.
Path display_outline(std::string_view text, float height, float spacing = 0);
/// The width of that line.
float display_width(std::string_view text, float height, float spacing = 0);

}  // namespace tombrello::art
