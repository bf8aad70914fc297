#pragma once

#include "seam/drawing.h"
#include "seam/picture.h"

namespace tombrello::art {

/// The one door to the game's pictures. Answers the vectors of any picture but the lying ones:
/// for `cartao` and `dorsoo` it answers the upright form, and whoever rasterises turns it a
/// quarter turn clockwise, so that both forms agree to the pixel.
/// The drawing's width and height are the picture's told size in pixels (96 by 153 and so on).
Drawing draw_picture(Picture picture);

/// The program's icon, a square drawing of 64 by 64 units, as it is to be shown at so many
/// pixels: small ones have fewer lines.
Drawing draw_icon(int pixels = 64);

}  // namespace tombrello::art
