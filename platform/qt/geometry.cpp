#include "qt/geometry.h"

#include <QtMath>
#include <algorithm>
#include <cmath>

namespace tombrello::qt {
namespace {

// Single precision sums such as right - left differ in their last bits from one place to the
// next; a size that falls between two pixels must not be rounded now up, now down.
double steadied(float size) {
  constexpr double kSteps = 128;
  return std::round(static_cast<double>(size) * kSteps) / kSteps;
}

}  // namespace

TableGeometry::TableGeometry(QSize pixels, double ratio, double dots_per_inch)
    : ratio_(ratio), pixels_per_point_(dots_per_inch / 72 * ratio) {
  const double wide = std::max(1, pixels.width());
  const double high = std::max(1, pixels.height());
  scale_ = std::min(wide / kSurfaceWidth, high / kSurfaceHeight);
  const QSize size(std::max(1, qRound(kSurfaceWidth * scale_)),
                   std::max(1, qRound(kSurfaceHeight * scale_)));
  table_ = QRect(QPoint((pixels.width() - size.width()) / 2, (pixels.height() - size.height()) / 2),
                 size);
}

QPoint TableGeometry::pixel(float x, float y) const {
  return table_.topLeft() + QPoint(qRound(x * scale_), qRound(y * scale_));
}

QRect TableGeometry::pixels(const Area& area) const {
  return {pixel(area.left, area.top), pixel(area.right, area.bottom) - QPoint(1, 1)};
}

QRect TableGeometry::picture_pixels(const Area& area) const {
  return {pixel(area.left, area.top),
          QSize(std::max(1, qRound(steadied(area.right - area.left) * scale_)),
                std::max(1, qRound(steadied(area.bottom - area.top) * scale_)))};
}

QPointF TableGeometry::logical(QPointF point) const {
  const QPointF place = (point * ratio_ - QPointF(table_.topLeft())) / scale_;
  return {std::clamp<double>(place.x(), 0, kSurfaceWidth),
          std::clamp<double>(place.y(), 0, kSurfaceHeight)};
}

QRect TableGeometry::widget_rect(const QRect& pixels) const {
  return QRectF(pixels.x() / ratio_, pixels.y() / ratio_, pixels.width() / ratio_,
                pixels.height() / ratio_)
      .toAlignedRect();
}

}  // namespace tombrello::qt
