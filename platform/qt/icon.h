#pragma once

#include <QIcon>
#include <functional>

#include "seam/drawing.h"

namespace tombrello::qt {

/// Answers an icon as it is to be shown at so many pixels.
using IconSource = std::function<Drawing(int)>;

/// Offers the usual sizes. Each is drawn whenever it is asked for, a few milliseconds for all of
/// them, and kept by nobody.
QIcon drawn_icon(IconSource source);

}  // namespace tombrello::qt
