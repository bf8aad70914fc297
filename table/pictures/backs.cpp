#include <algorithm>

#include "table/pictures/faces.h"
#include "table/pictures/outline.h"

namespace tombrello {
namespace {

struct BackColours {
  Rgba ground;
  Rgba light;
};

Path lattice(float left, float top, float right, float bottom, float step) {
  Path path;
  const float w = right - left;
  const float h = bottom - top;
  for (float at = -h; at < w; at += step) {
    const float x1 = at < 0 ? left : left + at;
    const float y1 = at < 0 ? top - at : top;
    const float reach = std::min(right - x1, bottom - y1);
    path.move({x1, y1});
    path.line({x1 + reach, y1 + reach});
    path.move({left + right - x1, y1});
    path.line({left + right - x1 - reach, y1 + reach});
  }
  return path;
}

}  // namespace

Drawing draw_back(int pack) {
  const BackColours colours = pack == 0 ? BackColours{{18, 34, 92, 255}, {236, 240, 250, 255}}
                                        : BackColours{{222, 98, 60, 255}, {255, 240, 214, 255}};
  const float height = pack == 0 ? 154.0F : 155.0F;
  Drawing back = blank_card(height);
  fill(back, rounded_box(6, 6, kCardWidth - 6, height - 6, 3), colours.ground);
  line(back, lattice(8, 8, kCardWidth - 8, height - 8, 8), 0.8F, colours.light);
  line(back, rounded_box(8, 8, kCardWidth - 8, height - 8, 2), 1, colours.light);
  return back;
}

}  // namespace tombrello
