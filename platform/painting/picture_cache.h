#pragma once

#include <cstddef>
#include <functional>
#include <map>

#include "painting/geometry.h"
#include "painting/region.h"
#include "raster/bitmap.h"
#include "seam/drawing.h"
#include "seam/picture.h"

namespace tombrello::painting {

/// Answers the vectors of a picture; of the lying ones it answers the upright form.
using PictureSource = std::function<Drawing(Picture)>;

/// One picture as it is laid on the table: at its size in pixels, turned as it lies.
struct Look {
  Picture picture;
  bool mirrored_x = false;
  bool mirrored_y = false;
  PixelSize size;
};

/// Pictures at the very size at which they are shown, rendered from their vectors when they are
/// first asked for.
class PictureCache {
 public:
  struct Rendered {
    raster::Bitmap image;
    Region opaque;  ///< hides whatever lies under it
    int round = 0;
  };

  explicit PictureCache(PictureSource source);

  Drawing vectors(Picture picture) const { return source_(picture); }
  const Rendered* find(const Look& look);      ///< null if it isn't rendered yet
  const Rendered& rendered(const Look& look);  ///< stays until `drop_unused`
  /// The same picture in any size, for a moment of stretching; null if there is none.
  const Rendered* stand_in(const Look& look) const;

  /// The scale has changed: what isn't asked for from now on has gone out of use.
  void start_round() { ++round_; }
  void drop_unused();
  std::size_t bytes() const;

 private:
  struct Order {
    bool operator()(const Look& a, const Look& b) const;
  };

  raster::Bitmap render(const Look& look) const;

  PictureSource source_;
  std::map<Look, Rendered, Order> pictures_;
  int round_ = 0;
};

}  // namespace tombrello::painting
