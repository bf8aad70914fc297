#pragma once

#include <cstdint>
#include <vector>

namespace tombrello {

/// A picture as vectors: shapes painted one over the other, in a coordinate system of
/// `width` by `height` units whose origin is the top left corner, y growing downward.
/// Whoever rasterises a drawing stretches it to the size asked for, anti-aliased, and leaves
/// transparent what no shape covers.
struct Point {
  float x = 0;
  float y = 0;
  bool operator==(const Point&) const = default;
};

struct Rgba {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;
  std::uint8_t a = 255;

  bool operator==(const Rgba&) const = default;
};

/// An outline of lines and cubic curves; subpaths follow one another.
struct Path {
  enum class Verb : std::uint8_t { move, line, cubic, close };

  std::vector<Verb> verbs;
  std::vector<Point> points;  ///< one for move and line, three for cubic, none for close

  void move(Point p) {
    verbs.push_back(Verb::move);
    points.push_back(p);
  }
  void line(Point p) {
    verbs.push_back(Verb::line);
    points.push_back(p);
  }
  void cubic(Point control1, Point control2, Point end) {
    verbs.push_back(Verb::cubic);
    points.insert(points.end(), {control1, control2, end});
  }
  void close() { verbs.push_back(Verb::close); }
};

struct Stop {
  float at = 0;  ///< 0 to 1 along the gradient, rising
  Rgba colour;
};

/// What fills an outline: `colour`, unless there are stops for a gradient.
struct Paint {
  enum class Kind : std::uint8_t { plain, linear, radial };

  Kind kind = Kind::plain;
  Rgba colour;
  Point from;        ///< start of a linear gradient, centre of a radial one
  Point to;          ///< end of a linear gradient
  float radius = 0;  ///< of a radial gradient
  std::vector<Stop> stops;
};

struct Shape {
  Path path;
  Paint fill;
  bool filled = true;
  float stroke_width = 0;  ///< in the drawing's units; 0 draws no line. Caps and joins are round
  Rgba stroke;
  bool even_odd = false;  ///< how nested outlines fill: even-odd, or by winding
};

struct Drawing {
  float width = 0;
  float height = 0;
  std::vector<Shape> shapes;
};

}  // namespace tombrello
