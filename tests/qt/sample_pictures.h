#pragma once

#include "pictures/outline.h"
#include "seam/picture.h"

namespace tombrello::qt {

/// A card with cut corners and a mark that is alike in no two corners, nor on two indices.
inline Drawing sample_picture(Picture picture) {
  Drawing card{96, 153, {}};
  art::inked(card, art::outline("M8 0 L88 0 C92 0 96 4 96 8 L96 145 L88 153 L8 153 L0 145 L0 8 Z"),
             {250, 250, 240, 255}, 1, {0, 0, 0, 255});
  const auto hue = static_cast<std::uint8_t>(picture.index * 37);
  const auto low = static_cast<float>(32 + picture.index);
  art::fill(card, art::polygon({{10, 12}, {40, 12}, {40, low}, {10, low}}), {200, hue, 40, 255});
  art::fill(card, art::outline("M70 100 L85.5 100 L85.5 133.25 L70 133.25 Z"), {20, 60, hue, 128});
  return card;
}

}  // namespace tombrello::qt
