#include "qt/geometry.h"

namespace tombrello::qt {

using painting::PixelRect;
using painting::Region;

QRect to_qrect(const PixelRect& rect) {
  return {rect.left, rect.top, rect.width(), rect.height()};
}

QRegion to_qregion(const Region& region) {
  QRegion result;
  for (const PixelRect& rect : region.rects()) result += to_qrect(rect);
  return result;
}

Region to_region(const QRegion& region) {
  Region result;
  for (const QRect& rect : region) {
    result.add(PixelRect{rect.left(), rect.top(), rect.right() + 1, rect.bottom() + 1});
  }
  return result;
}

TableGeometry::TableGeometry(QSize pixels, double ratio, double dots_per_inch)
    : painting::TableGeometry({pixels.width(), pixels.height()}, dots_per_inch / 72 * ratio),
      ratio_(ratio) {}

Point TableGeometry::logical(QPointF point) const {
  return painting::TableGeometry::logical(point.x() * ratio_, point.y() * ratio_);
}

QRect TableGeometry::widget_rect(const PixelRect& pixels) const {
  return QRectF(pixels.left / ratio_, pixels.top / ratio_, pixels.width() / ratio_,
                pixels.height() / ratio_)
      .toAlignedRect();
}

}  // namespace tombrello::qt
