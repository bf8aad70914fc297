#pragma once

#include <array>

#include "painting/canvas.h"

namespace tombrello::painting {

/// The four sides of the outline around an area.
std::array<PixelRect, 4> mark_pixels(const Area& area, const TableGeometry& geometry);

/// Paints it in two tones, so that it is seen on cards and on felt, by whoever sees no colours
/// too.
void paint_mark(Canvas& canvas, const Area& area, const TableGeometry& geometry);

}  // namespace tombrello::painting
