#include "raster/bitmap.h"

#include <algorithm>
#include <cassert>

namespace tombrello::raster {

Bitmap::Bitmap(int w, int h) : width(w), height(h) {
  assert(w >= 0 && h >= 0);
  pixels.resize(offset(h));
}

Bitmap quarter_turn(const Bitmap& upright) {
  Bitmap lying(upright.height, upright.width);
  for (int y = 0; y < lying.height; ++y) {
    std::uint32_t* const row = lying.row(y);
    for (int x = 0; x < lying.width; ++x) row[x] = upright.at(y, upright.height - 1 - x);
  }
  return lying;
}

Bitmap mirrored(Bitmap bitmap, bool left_and_right, bool up_and_down) {
  if (left_and_right) {
    for (int y = 0; y < bitmap.height; ++y) {
      std::reverse(bitmap.row(y), bitmap.row(y) + bitmap.width);
    }
  }
  if (up_and_down) {
    for (int y = 0; y < bitmap.height / 2; ++y) {
      std::swap_ranges(bitmap.row(y), bitmap.row(y) + bitmap.width,
                       bitmap.row(bitmap.height - 1 - y));
    }
  }
  return bitmap;
}

}  // namespace tombrello::raster
