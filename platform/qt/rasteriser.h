#pragma once

#include <QImage>

#include "seam/drawing.h"

namespace tombrello::qt {

/// What `raster::rasterise` makes of a drawing, as an image of its own.
QImage rasterise(const Drawing& drawing, int w, int h);

}  // namespace tombrello::qt
