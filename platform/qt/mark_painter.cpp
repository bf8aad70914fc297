#include "qt/mark_painter.h"

#include <algorithm>

namespace tombrello::qt {
namespace {

// Of one tone, in pixels: the outline is two of them wide, and lies within its area.
int tone_width(const TableGeometry& geometry) {
  return std::max(2, static_cast<int>(geometry.scale() * 1.4));
}

std::array<QRect, 4> sides_of(const QRect& outer, int width) {
  const QRect inner = outer.adjusted(width, width, -width, -width);
  return {QRect(outer.topLeft(), QSize(outer.width(), width)),
          QRect(QPoint(outer.left(), inner.bottom() + 1), QSize(outer.width(), width)),
          QRect(QPoint(outer.left(), inner.top()), QSize(width, inner.height())),
          QRect(QPoint(inner.right() + 1, inner.top()), QSize(width, inner.height()))};
}

QRect outline(const Area& area, const TableGeometry& geometry) {
  return geometry.pixels(area) & geometry.table();
}

}  // namespace

std::array<QRect, 4> mark_pixels(const Area& area, const TableGeometry& geometry) {
  return sides_of(outline(area, geometry), 2 * tone_width(geometry));
}

void paint_mark(QPainter& painter, const Area& area, const TableGeometry& geometry) {
  const QRect outer = outline(area, geometry);
  const int width = tone_width(geometry);
  for (const QRect& side : sides_of(outer, width)) painter.fillRect(side, QColor(20, 20, 20));
  for (const QRect& side : sides_of(outer.adjusted(width, width, -width, -width), width)) {
    painter.fillRect(side, QColor(255, 214, 0));
  }
}

}  // namespace tombrello::qt
