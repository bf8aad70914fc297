#pragma once

#include <QColor>
#include <QDeadlineTimer>
#include <QPainter>
#include <QRegion>

#include "qt/geometry.h"
#include "qt/picture_cache.h"
#include "seam/surface.h"

namespace tombrello::qt {

QColor to_qcolor(Colour colour);

/// Every pixel that an item touches.
QRect pixels_of(const Item& item, const TableGeometry& geometry);
/// Every pixel that may look different once the item stands, or is gone.
QRect changed_pixels(const Item& item, const TableGeometry& geometry);

/// Paints all that stands in the exposed region, which is in the pixels of `geometry`; so are
/// the painter's units. The pixels don't depend on what was there, nor on how the region was cut.
///
/// When `patience` has run out, a picture that isn't ready is stretched from another size, if
/// there is one; the region where that happened is answered, to be painted again.
QRegion paint_surface(QPainter& painter, const Surface& surface, const TableGeometry& geometry,
                      const QRegion& exposed, PictureCache& pictures,
                      QDeadlineTimer patience = QDeadlineTimer::Forever);

}  // namespace tombrello::qt
