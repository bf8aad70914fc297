#include "table/pictures/faces.h"
#include "table/pictures/outline.h"
#include "table/pictures/pictures.h"

namespace tombrello {

Drawing draw_icon() {
  Drawing icon{64, 64, {}};
  fill(icon, rounded_box(1, 1, 63, 63, 12), {0, 112, 0, 255});
  inked(icon, moved(rounded_box(-17, -24, 17, 24, 5), shift(27, 33) * turning(-14)),
        {24, 44, 112, 255}, 2, {255, 255, 255, 255});
  inked(icon, moved(rounded_box(-17, -24, 17, 24, 5), shift(36, 32) * turning(8)),
        {255, 253, 247, 255}, 1.5F, {90, 86, 76, 255});
  fill(icon, moved(suit_outline(Suit::hearts, {0, 0}, 27), shift(36, 32.5F) * turning(8)),
       suit_colour(Suit::hearts));
  return icon;
}

}  // namespace tombrello
