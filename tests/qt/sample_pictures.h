#pragma once

#include "seam/drawing.h"
#include "seam/picture.h"

namespace tombrello::qt {

inline Shape sample_box(float x, float y, float w, float h, Rgba colour) {
  Shape shape;
  shape.path.move({x, y});
  shape.path.line({x + w, y});
  shape.path.line({x + w, y + h});
  shape.path.line({x, y + h});
  shape.path.close();
  shape.fill.colour = colour;
  return shape;
}

/// A card with cut corners and a mark that is alike in no two corners, nor on two indices.
inline Drawing sample_picture(Picture picture) {
  Drawing drawing;
  drawing.width = 96;
  drawing.height = 153;
  Shape card;
  card.path.move({8, 0});
  card.path.line({88, 0});
  card.path.cubic({92, 0}, {96, 4}, {96, 8});
  card.path.line({96, 145});
  card.path.line({88, 153});
  card.path.line({8, 153});
  card.path.line({0, 145});
  card.path.line({0, 8});
  card.path.close();
  card.fill.colour = {250, 250, 240, 255};
  card.stroke_width = 1;
  card.stroke = {0, 0, 0, 255};
  drawing.shapes.push_back(card);
  const auto hue = static_cast<std::uint8_t>(picture.index * 37);
  drawing.shapes.push_back(
      sample_box(10, 12, 30, static_cast<float>(20 + picture.index), {200, hue, 40, 255}));
  drawing.shapes.push_back(sample_box(70, 100, 15.5F, 33.25F, {20, 60, hue, 128}));
  return drawing;
}

}  // namespace tombrello::qt
