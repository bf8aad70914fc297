#include "painting/pixel_canvas.h"

#include <algorithm>

namespace tombrello::painting {
namespace {

// Two of the four bytes of a pixel times `factor` / 255.
std::uint32_t scaled_pair(std::uint32_t pair, std::uint32_t factor) {
  const std::uint32_t product = (pair & 0x00FF00FFU) * factor + 0x00800080U;
  return (product + (product >> 8 & 0x00FF00FFU)) >> 8 & 0x00FF00FFU;
}

std::uint32_t over(std::uint32_t above, std::uint32_t below) {
  const std::uint32_t share = 255 - (above >> 24);
  if (share == 0) return above;
  return above + (scaled_pair(below, share) | scaled_pair(below >> 8, share) << 8);
}

// Which pixel of an image shows at pixel `at` of `place`.
int source_of(int at, int start, int length, int image_length) {
  return static_cast<int>(static_cast<long long>(at - start) * image_length / length);
}

}  // namespace

void PixelCanvas::fill(const PixelRect& rect, Colour colour) {
  finish_letters();
  const PixelRect part = rect.intersected(memory_.bounds());
  const std::uint32_t pixel = (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
  for (int y = part.top; y < part.bottom; ++y) {
    if (part.left < part.right) std::fill_n(memory_.row(y) + part.left, part.width(), pixel);
  }
}

void PixelCanvas::picture(const raster::Bitmap& image, const PixelRect& place,
                          const Region& visible) {
  finish_letters();
  for (const PixelRect& rect : visible.rects()) {
    const PixelRect part = rect.intersected(place).intersected(memory_.bounds());
    for (int y = part.top; y < part.bottom; ++y) {
      const std::uint32_t* from = image.row(source_of(y, place.top, place.height(), image.height));
      std::uint32_t* to = memory_.row(y);
      for (int x = part.left; x < part.right; ++x) {
        to[x] = over(from[source_of(x, place.left, place.width(), image.width)], to[x]);
      }
    }
  }
}

}  // namespace tombrello::painting
