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

/// The left end of the baseline of a line of text, whose own font is handed in.
QPoint text_baseline(const TextItem& item, const QFont& font,
                     const painting::TableGeometry& geometry);

/// Every pixel that it may touch.
QRect text_pixels(const TextItem& item, const painting::TableGeometry& geometry);

}  // namespace tombrello::qt
