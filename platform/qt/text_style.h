#pragma once

#include <QFont>
#include <QPoint>
#include <QRect>

#include "painting/geometry.h"
#include "seam/surface.h"

namespace tombrello::qt {

/// A font in points, for overlay controls. The only place that knows which families of this
/// system stand for those that the game asks for.
QFont control_font(const Font& font);

/// The bold font for letters painted straight onto pixels. The only place that turns points
/// into pixels.
QFont table_font(const Font& font, const painting::TableGeometry& geometry);

/// Every pixel that a line of text may touch, and the left end of its baseline.
struct TextPlace {
  QRect pixels;
  QPoint baseline;
};
TextPlace text_place(const TextItem& item, const painting::TableGeometry& geometry);

}  // namespace tombrello::qt
