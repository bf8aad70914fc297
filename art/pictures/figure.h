#pragma once

#include <string_view>
#include <vector>

#include "pictures/outline.h"
#include "pictures/suits.h"

namespace tombrello::art {

/// What the court is painted with: four colours and gold, on skin, cloth and ink.
namespace court {
inline constexpr Rgba kInk{30, 26, 44, 255};
inline constexpr Rgba kCrimson{186, 24, 48, 255};
inline constexpr Rgba kVermilion{226, 86, 34, 255};
inline constexpr Rgba kAmber{246, 148, 58, 255};  // a thread that stays calm on vermilion
inline constexpr Rgba kTeal{0, 104, 112, 255};
inline constexpr Rgba kNavy{36, 52, 118, 255};
inline constexpr Rgba kGold{246, 196, 72, 255};
inline constexpr Rgba kOldGold{200, 138, 34, 255};
inline constexpr Rgba kCream{255, 250, 234, 255};
inline constexpr Rgba kWhite{255, 255, 255, 255};
inline constexpr Rgba kSteel{190, 202, 218, 255};
inline constexpr Rgba kIron{126, 140, 164, 255};
inline constexpr Rgba kWood{146, 94, 52, 255};
inline constexpr Rgba kLeaf{48, 122, 72, 255};
inline constexpr Rgba kGround{254, 245, 220, 255};
/// Laid over what turns away from the light.
inline constexpr Rgba kFold{104, 40, 8, 58};
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
  void inked(const Path& path, Rgba colour, float width = 0.75F);
  void inked(std::string_view path, Rgba colour) { inked(outline(path), colour); }
  /// With a thinner line, for what is small or lies within a contour.
  void fine(const Path& path, Rgba colour) { inked(path, colour, 0.5F); }
  void fine(std::string_view path, Rgba colour) { inked(outline(path), colour, 0.5F); }
  /// With a part of it turned away from the light.
  void shaded(std::string_view path, Rgba colour, std::string_view part);
  void plain(const Path& path, Rgba colour);
  void plain(std::string_view path, Rgba colour) { plain(outline(path), colour); }
  void line(const Path& path, float width, Rgba colour);
  void line(std::string_view path, float width, Rgba colour) { line(outline(path), width, colour); }
  /// The same small outline at many places, as one shape.
  void sprinkle(const Path& motif, const std::vector<Point>& places, Rgba colour);
  void studs(float radius, const std::vector<Point>& places, Rgba colour);
  /// A figured cloth: the motif, drawn about the origin, in staggered rows `step` apart,
  /// wherever it lies within the first outline of `cloth`.
  void figured(std::string_view cloth, const Path& motif, Point step, Rgba colour);

  const Drawing& drawing() const { return drawing_; }

  Affine at;

 private:
  Drawing drawing_;
};

void add_king(Figure& figure, Suit suit);
void add_queen(Figure& figure, Suit suit);
void add_jack(Figure& figure, Suit suit);

}  // namespace tombrello::art
