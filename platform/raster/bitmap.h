#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tombrello::raster {

/// A picture in pixels: rows from the top, each from the left. A pixel is 0xAARRGGBB, its colours
/// already multiplied by its alpha.
struct Bitmap {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;

  Bitmap() = default;
  /// Transparent. `w` and `h` are 0 or more.
  Bitmap(int w, int h);

  std::uint32_t* row(int y) { return pixels.data() + offset(y); }
  const std::uint32_t* row(int y) const { return pixels.data() + offset(y); }
  std::uint32_t at(int x, int y) const { return row(y)[x]; }

  bool operator==(const Bitmap&) const = default;

 private:
  std::size_t offset(int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
  }
};

/// A quarter turn clockwise: the top edge points to the right.
Bitmap quarter_turn(const Bitmap& upright);
Bitmap mirrored(Bitmap bitmap, bool left_and_right, bool up_and_down);

}  // namespace tombrello::raster
