#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>

#include "seam/surface.h"

namespace tombrello::qt {

/// Where the table lies in the widget that shows it: 4 : 3, the largest that fits, centred.
/// `Pixels` are the screen's own, counted from the widget's top left corner; Qt's coordinates
/// are those divided by `ratio`, which need not be whole.
class TableGeometry {
 public:
  /// `pixels`: the widget's size, at least 1 by 1. `dots_per_inch`: of Qt's coordinates.
  TableGeometry(QSize pixels, double ratio, double dots_per_inch);

  QRect table() const { return table_; }
  double scale() const { return scale_; }  ///< pixels a logical unit
  double ratio() const { return ratio_; }
  double pixels_per_point() const { return pixels_per_point_; }

  /// Edges go to the nearest pixel, so that areas which touch still do.
  QRect pixels(const Area& area) const;
  /// The corner goes to the nearest pixel, and so does the size: pictures of the same logical
  /// size have the same size in pixels wherever they lie.
  QRect picture_pixels(const Area& area) const;
  QPoint pixel(float x, float y) const;

  /// The logical place under a point in Qt's coordinates, or the nearest one on the table.
  QPointF logical(QPointF point) const;
  /// Qt's coordinates that hold all of a rectangle of pixels.
  QRect widget_rect(const QRect& pixels) const;

  bool operator==(const TableGeometry&) const = default;

 private:
  QRect table_;
  double scale_ = 1;
  double ratio_ = 1;
  double pixels_per_point_ = 1;
};

}  // namespace tombrello::qt
