#include "painting/geometry.h"

#include <algorithm>
#include <cmath>

namespace tombrello::painting {
namespace {

// As far as a pixel: halves go up, whichever side of the corner they lie on.
int nearest(double value) {
  return static_cast<int>(std::floor(value + 0.5));
}

// Single precision sums such as right - left differ in their last bits from one place to the
// next; a size that falls between two pixels must not be rounded now up, now down.
double steadied(float size) {
  constexpr double kSteps = 128;
  return std::round(static_cast<double>(size) * kSteps) / kSteps;
}

}  // namespace

TableGeometry::TableGeometry(PixelSize room, double pixels_per_point)
    : pixels_per_point_(pixels_per_point) {
  const int wide = std::max(1, room.width);
  const int high = std::max(1, room.height);
  scale_ = std::min(wide / static_cast<double>(kSurfaceWidth),
                    high / static_cast<double>(kSurfaceHeight));
  const int width = std::max(1, nearest(static_cast<double>(kSurfaceWidth) * scale_));
  const int height = std::max(1, nearest(static_cast<double>(kSurfaceHeight) * scale_));
  table_ = PixelRect{0, 0, width, height}.moved((wide - width) / 2, (high - height) / 2);
}

PixelPlace TableGeometry::pixel(float x, float y) const {
  return {table_.left + nearest(static_cast<double>(x) * scale_),
          table_.top + nearest(static_cast<double>(y) * scale_)};
}

PixelRect TableGeometry::pixels(const Area& area) const {
  const PixelPlace from = pixel(area.left, area.top);
  const PixelPlace to = pixel(area.right, area.bottom);
  return {from.x, from.y, to.x, to.y};
}

PixelRect TableGeometry::picture_pixels(const Area& area) const {
  const PixelPlace corner = pixel(area.left, area.top);
  const int width = std::max(1, nearest(steadied(area.right - area.left) * scale_));
  const int height = std::max(1, nearest(steadied(area.bottom - area.top) * scale_));
  return {corner.x, corner.y, corner.x + width, corner.y + height};
}

int TableGeometry::letter_pixels(const Font& font) const {
  return std::max(1, nearest(static_cast<double>(font.size) * pixels_per_point_));
}

Point TableGeometry::logical(double x, double y) const {
  return {static_cast<float>(std::clamp<double>((x - table_.left) / scale_, 0, kSurfaceWidth)),
          static_cast<float>(std::clamp<double>((y - table_.top) / scale_, 0, kSurfaceHeight))};
}

}  // namespace tombrello::painting
