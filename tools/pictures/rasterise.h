#pragma once

#include <QImage>

#include "platform/drawing.h"

/// Stretches the drawing to this many pixels, anti-aliased, transparent where nothing covers.
QImage rasterise(const tombrello::Drawing& drawing, int width, int height);
