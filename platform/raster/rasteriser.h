#pragma once

#include "raster/bitmap.h"
#include "seam/drawing.h"

namespace tombrello::raster {

/// The drawing stretched to w by h pixels (1 or more each), anti-aliased; transparent where no
/// shape covers. The same on every system, to the bit. A large one is painted on all cores.
Bitmap rasterise(const Drawing& drawing, int w, int h);

}  // namespace tombrello::raster
