#pragma once

#include <QPainter>
#include <QRect>
#include <array>

#include "qt/geometry.h"
#include "seam/surface.h"

namespace tombrello::qt {

/// The four sides of the outline around an area, in the table's pixels.
std::array<QRect, 4> mark_pixels(const Area& area, const TableGeometry& geometry);

/// Paints it in two tones, so that it is seen on cards and on felt, by whoever sees no colours
/// too. The painter counts in pixels.
void paint_mark(QPainter& painter, const Area& area, const TableGeometry& geometry);

}  // namespace tombrello::qt
