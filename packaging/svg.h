#pragma once

#include <string>

#include "seam/drawing.h"

namespace tombrello {

/// The drawing as an SVG file of its own width and height, the same bytes on every machine.
std::string to_svg(const Drawing& drawing);

}  // namespace tombrello
