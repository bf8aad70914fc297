#pragma once

#include "pictures/figure.h"

namespace tombrello::art {

struct Look {
  Rgba skin;
  Rgba shade;  ///< of the skin, away from the light
  Rgba hair;   ///< of the brows
  Rgba eyes;
  float frown = 0;  ///< by how much the brows fall towards the nose
  float smile = 0;  ///< by how much the corners of the mouth rise
};

/// Heads are drawn about a point between the eyes, looking to the left; 27 units from the brow's
/// hair to the chin, laid on the card a little larger. A negative `side` looks to the right.
Affine head_place(float x, float y, float tilt, float side);

/// The six faces, without hair: seen from three quarters, from the front and from the side. Only
/// the man aside has an ear; a round chin is also shorter.
void add_man_turned(Figure& figure, const Look& look);
void add_man_facing(Figure& figure, const Look& look);
void add_man_aside(Figure& figure, const Look& look);
void add_lady_turned(Figure& figure, const Look& look, bool round_chin);
void add_lady_facing(Figure& figure, const Look& look);
void add_lady_aside(Figure& figure, const Look& look);

/// A neck down to the collar, for a head turned or facing.
void add_neck(Figure& figure, const Look& look);

void add_freckles(Figure& figure);

}  // namespace tombrello::art
