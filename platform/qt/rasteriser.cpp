#include "qt/rasteriser.h"

#include "qt/canvas.h"
#include "raster/rasteriser.h"

namespace tombrello::qt {

QImage rasterise(const Drawing& drawing, int w, int h) {
  return view_of(raster::rasterise(drawing, w, h)).copy();
}

}  // namespace tombrello::qt
