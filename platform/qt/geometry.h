#pragma once

#include <QPointF>
#include <QRect>
#include <QRegion>
#include <QSize>

#include "painting/geometry.h"

namespace tombrello::qt {

QRect to_qrect(const painting::PixelRect& rect);
QRegion to_qregion(const painting::Region& region);
painting::Region to_region(const QRegion& region);

/// Where the table lies in the widget that shows it. Pixels are the screen's own; Qt's
/// coordinates are those divided by `ratio`, which need not be whole.
class TableGeometry : public painting::TableGeometry {
 public:
  /// `pixels`: the widget's size, at least 1 by 1. `dots_per_inch`: of Qt's coordinates.
  TableGeometry(QSize pixels, double ratio, double dots_per_inch);

  double ratio() const { return ratio_; }

  /// The logical place under a point in Qt's coordinates, or the nearest one on the table.
  Point logical(QPointF point) const;
  /// Qt's coordinates that hold all of a rectangle of pixels.
  QRect widget_rect(const painting::PixelRect& pixels) const;

  bool operator==(const TableGeometry&) const = default;

 private:
  double ratio_ = 1;
};

}  // namespace tombrello::qt
