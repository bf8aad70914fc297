#pragma once

#include "painting/region.h"
#include "seam/drawing.h"
#include "seam/surface.h"

namespace tombrello::painting {

struct PixelSize {
  int width = 0;
  int height = 0;
  bool operator==(const PixelSize&) const = default;
};

struct PixelPlace {
  int x = 0;
  int y = 0;
  bool operator==(const PixelPlace&) const = default;
};

/// Where the table lies in the window that shows it: 4 : 3, the largest that fits, centred.
/// Pixels are the screen's own, counted from the top left corner of the room for the table.
class TableGeometry {
 public:
  /// `room`: for the table, at least 1 by 1.
  TableGeometry(PixelSize room, double pixels_per_point);

  const PixelRect& table() const { return table_; }
  double scale() const { return scale_; }  ///< pixels a logical unit
  double pixels_per_point() const { return pixels_per_point_; }

  PixelPlace pixel(float x, float y) const;
  /// Edges go to the nearest pixel, so that areas which touch still do.
  PixelRect pixels(const Area& area) const;
  /// The corner goes to the nearest pixel, and so does the size: pictures of the same logical
  /// size have the same size in pixels wherever they lie.
  PixelRect picture_pixels(const Area& area) const;
  /// The height of letters, 1 or more.
  int letter_pixels(const Font& font) const;

  /// The logical place under a pixel, or the nearest one on the table.
  Point logical(double x, double y) const;

  bool operator==(const TableGeometry&) const = default;

 private:
  PixelRect table_;
  double scale_ = 1;
  double pixels_per_point_ = 1;
};

}  // namespace tombrello::painting
