#pragma once

#include "painting/geometry.h"
#include "painting/region.h"
#include "raster/bitmap.h"
#include "seam/surface.h"

namespace tombrello::painting {

/// What only the system knows: its letters.
class Letters {
 public:
  virtual ~Letters() = default;
  /// Every pixel that a line of text may touch.
  virtual PixelRect pixels(const TextItem& item, const TableGeometry& geometry) const = 0;
};

/// Where the table is painted.
class Canvas {
 public:
  virtual ~Canvas() = default;
  virtual void fill(const PixelRect& rect, Colour colour) = 0;
  /// The part `visible` of a picture that takes the whole of `place`; of another size than the
  /// image it is stretched roughly.
  virtual void picture(const raster::Bitmap& image, const PixelRect& place,
                       const Region& visible) = 0;
  virtual void text(const TextItem& item, const TableGeometry& geometry, const Region& visible) = 0;
};

}  // namespace tombrello::painting
