#pragma once

#include <string_view>
#include <vector>

#include "pictures/outline.h"
#include "pictures/suits.h"

namespace tombrello::art {

/// What the court is painted with: four colours and gold, on skin, cloth and ink.
namespace court {
inline constexpr Rgba kInk{30, 26, 44, 255};
inline constexpr Rgba kCrimson{192, 26, 48, 255};
inline constexpr Rgba kVermilion{230, 92, 38, 255};
inline constexpr Rgba kTeal{0, 112, 116, 255};
inline constexpr Rgba kNavy{36, 54, 122, 255};
inline constexpr Rgba kGold{246, 196, 72, 255};
inline constexpr Rgba kOldGold{206, 146, 38, 255};
inline constexpr Rgba kCream{255, 250, 234, 255};
inline constexpr Rgba kSkin{253, 226, 200, 255};
inline constexpr Rgba kShade{238, 196, 164, 255};
inline constexpr Rgba kSteel{186, 198, 214, 255};
inline constexpr Rgba kGround{254, 245, 220, 255};
}  // namespace court

/// The panel of a court card, and the line where its two figures meet, slanting to the right.
namespace court {
inline constexpr float kLeft = 20;
inline constexpr float kRight = 76;
inline constexpr float kTop = 10;
inline constexpr float kBottom = 143;
inline constexpr float kSeamLeft = 82;
inline constexpr float kSeamRight = 71;
}  // namespace court

/// One half of a court card under the brush. Outlines are given in the card's units, moved by
/// `at`; figures reach down to the seam and no further.
class Figure {
 public:
  void inked(const Path& path, Rgba colour);
  void inked(std::string_view path, Rgba colour) { inked(outline(path), colour); }
  void plain(const Path& path, Rgba colour);
  void plain(std::string_view path, Rgba colour) { plain(outline(path), colour); }
  void line(std::string_view path, float width, Rgba colour);
  /// Another drawing, moved likewise.
  void add(const Drawing& picture) { append(drawing_, picture, at); }
  /// The same small outline at many places, as one shape.
  void sprinkle(const Path& motif, const std::vector<Point>& places, Rgba colour);

  const Drawing& drawing() const { return drawing_; }

  Affine at;

 private:
  Drawing drawing_;
};

struct Look {
  Rgba hair;
  Rgba eyes;
  bool lady = false;
  float frown = 0;  ///< by how much the brows fall towards the nose
};

/// Heads are drawn about a point between the eyes, looking to the left; 26 units from the hair's
/// edge to the chin. A negative `side` looks to the right.
Affine head_place(float x, float y, float tilt, float side);
void add_neck(Figure& figure);
void add_face(Figure& figure, const Look& look);
void add_moustache(Figure& figure, Rgba hair);

/// A forearm from the seam up to a hand that holds something upright at `hand`.
/// It comes from the left for a positive `side`, from the right for a negative one.
void add_arm(Figure& figure, Point hand, float side, Rgba sleeve, Rgba cuff);

void add_king(Figure& figure, Suit suit);
void add_queen(Figure& figure, Suit suit);
void add_jack(Figure& figure, Suit suit);

}  // namespace tombrello::art
