#include "painting/mark.h"

#include <algorithm>

namespace tombrello::painting {
namespace {

constexpr Colour kDark = 0x141414;
constexpr Colour kBright = 0x00D6FF;

// Of one tone, in pixels: the outline is two of them wide, one on each side of its area's edge.
int tone_width(const TableGeometry& geometry) {
  return std::max(2, static_cast<int>(geometry.scale() * 1.4));
}

std::array<PixelRect, 4> sides_of(const PixelRect& outer, int width) {
  const PixelRect inner = outer.grown(-width);
  return {PixelRect{outer.left, outer.top, outer.right, inner.top},
          PixelRect{outer.left, inner.bottom, outer.right, outer.bottom},
          PixelRect{outer.left, inner.top, inner.left, inner.bottom},
          PixelRect{inner.right, inner.top, outer.right, inner.bottom}};
}

PixelRect outline(const Area& area, const TableGeometry& geometry) {
  return geometry.pixels(area).grown(tone_width(geometry)).intersected(geometry.table());
}

}  // namespace

std::array<PixelRect, 4> mark_pixels(const Area& area, const TableGeometry& geometry) {
  return sides_of(outline(area, geometry), 2 * tone_width(geometry));
}

void paint_mark(Canvas& canvas, const Area& area, const TableGeometry& geometry) {
  const PixelRect outer = outline(area, geometry);
  const int width = tone_width(geometry);
  for (const PixelRect& side : sides_of(outer, width)) canvas.fill(side, kDark);
  for (const PixelRect& side : sides_of(outer.grown(-width), width)) canvas.fill(side, kBright);
}

}  // namespace tombrello::painting
