#pragma once

#include <string_view>
#include <vector>

#include "seam/drawing.h"

namespace tombrello::art {

/// x' = xx x + xy y + dx, y' = yx x + yy y + dy.
struct Affine {
  float xx = 1;
  float xy = 0;
  float yx = 0;
  float yy = 1;
  float dx = 0;
  float dy = 0;

  Point operator()(Point p) const;
  Affine operator*(const Affine& first) const;  ///< `first` acts first
  float scale() const;                          ///< by how much a line grows, on average
};

Affine shift(float dx, float dy);
Affine scaling(float x, float y);
Affine turning(float degrees);  ///< clockwise on the screen
/// A half turn about the middle of a drawing of this size.
Affine half_turn(float width, float height);

/// An outline from text: M and L (points), C and Q (curves with two and one control points),
/// R (a smooth curve through the points that follow), Z. Coordinates are absolute, separated by
/// blanks or commas; a letter holds until the next one. Ill-formed text is a fault of the caller.
Path outline(std::string_view text);

Path circle(Point centre, float radius);
Path ellipse(Point centre, float rx, float ry);
Path rounded_box(float left, float top, float right, float bottom, float radius);
Path polygon(const std::vector<Point>& corners);
/// A closed smooth curve through the points.
Path loop(const std::vector<Point>& points);
/// Petals around a point, from radius `inner` to `outer`.
Path petals(Point middle, int count, float inner, float outer, float width);

/// The corners of an outline's first part, its curves taken in short steps.
std::vector<Point> corners_of(const Path& path);
/// Whether the point lies within a part of such corners; in none without corners.
bool within(const std::vector<Point>& corners, Point p);

Path moved(const Path& path, const Affine& by);
void join(Path& onto, const Path& more);

void fill(Drawing& drawing, Path path, Rgba colour);
void fill(Drawing& drawing, Path path, Paint paint);
void line(Drawing& drawing, Path path, float width, Rgba colour);
/// Filled, with a line around.
void inked(Drawing& drawing, Path path, Rgba colour, float width, Rgba ink);
/// Puts `picture` on top of `drawing`, its lines and gradients scaled along.
void append(Drawing& drawing, const Drawing& picture, const Affine& by);

}  // namespace tombrello::art
