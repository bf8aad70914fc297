#pragma once

#include <QImage>

#include "seam/drawing.h"

namespace tombrello::qt {

/// The drawing stretched to w by h pixels (1 or more each), anti-aliased, with premultiplied
/// alpha; transparent where no shape covers.
QImage rasterise(const Drawing& drawing, int w, int h);

}  // namespace tombrello::qt
