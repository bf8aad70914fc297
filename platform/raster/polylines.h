#pragma once

#include <vector>

#include "seam/drawing.h"

namespace tombrello::raster {

struct Place {
  double x = 0;
  double y = 0;
};

struct Polyline {
  std::vector<Place> places;
  bool closed = false;
};

/// The subpaths of a path, its curves made of lines that keep within a tenth of a pixel of them
/// where a unit of the path is `scale` pixels.
std::vector<Polyline> flattened(const Path& path, double scale);

/// The outlines of a line of this width along a polyline, with round joins and caps, to be filled
/// by winding.
std::vector<Polyline> stroked(const Polyline& line, double width, double scale);

}  // namespace tombrello::raster
