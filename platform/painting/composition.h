#pragma once

#include <chrono>

#include "painting/canvas.h"
#include "painting/picture_cache.h"
#include "seam/surface.h"

namespace tombrello::painting {

using Patience = std::chrono::steady_clock::time_point;
inline constexpr Patience kEndlessPatience = Patience::max();

/// Every pixel that may look different after these changes; all of them is `room`.
Region changed_pixels(const Surface::Changes& changes, const TableGeometry& geometry,
                      const Letters& letters, const PixelRect& room);

/// Paints all that stands in the exposed region. The pixels don't depend on what was there, nor
/// on how the region was cut.
///
/// When patience has run out, a picture that isn't ready is stretched from another size, if
/// there is one; the region where that happened is answered, to be painted again.
Region paint_surface(Canvas& canvas, const Letters& letters, const Surface& surface,
                     const TableGeometry& geometry, const Region& exposed, PictureCache& pictures,
                     Patience patience = kEndlessPatience);

}  // namespace tombrello::painting
