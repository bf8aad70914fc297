#include "raster/polylines.h"

#include <agg_math_stroke.h>

#include <algorithm>
#include <cmath>

namespace tombrello::raster {
namespace {

constexpr double kTolerance = 0.1;  // pixels
constexpr double kMostPieces = 200;

Place at(Point p) {
  return {static_cast<double>(p.x), static_cast<double>(p.y)};
}

// A cubic strays from a chord of 1/n of it by at most d / n², d growing with how far its control
// points lie from a straight, evenly paced line.
int pieces(Place a, Place b, Place c, Place d, double scale) {
  const double bend = std::max(std::hypot(a.x - 2 * b.x + c.x, a.y - 2 * b.y + c.y),
                               std::hypot(b.x - 2 * c.x + d.x, b.y - 2 * c.y + d.y));
  const double n = std::ceil(std::sqrt(0.75 * bend * scale / kTolerance));
  return static_cast<int>(std::clamp(n, 1.0, kMostPieces));
}

void add_curve(std::vector<Place>& places, Place b, Place c, Place d, double scale) {
  const Place a = places.back();
  const int n = pieces(a, b, c, d, scale);
  for (int i = 1; i < n; ++i) {
    const double t = static_cast<double>(i) / n;
    const double u = 1 - t;
    const double ka = u * u * u;
    const double kb = 3 * u * u * t;
    const double kc = 3 * u * t * t;
    const double kd = t * t * t;
    places.push_back(
        {ka * a.x + kb * b.x + kc * c.x + kd * d.x, ka * a.y + kb * b.y + kc * c.y + kd * d.y});
  }
  places.push_back(d);
}

/// Takes what the stroker makes, piece after piece.
class Outline {
 public:
  using value_type = agg::point_d;
  void add(const agg::point_d& p) { line.places.push_back({p.x, p.y}); }
  void remove_all() {}  // it would start anew with each piece

  Polyline line{{}, true};
};

using Stroker = agg::math_stroke<Outline>;
using Vertices = agg::vertex_sequence<agg::vertex_dist, 6>;

void add_joins(Outline& outline, Stroker& stroker, const Vertices& v, unsigned first,
               unsigned last) {
  for (unsigned i = first; i < last; ++i) {
    stroker.calc_join(outline, v.prev(i), v.curr(i), v.next(i), v.prev(i).dist, v.curr(i).dist);
  }
}

void add_joins_back(Outline& outline, Stroker& stroker, const Vertices& v, unsigned first,
                    unsigned last) {
  for (unsigned i = last; i-- > first;) {
    stroker.calc_join(outline, v.next(i), v.curr(i), v.prev(i), v.curr(i).dist, v.prev(i).dist);
  }
}

std::vector<Polyline> ring(Stroker& stroker, const Vertices& v) {
  Outline outer;
  Outline inner;
  add_joins(outer, stroker, v, 0, v.size());
  add_joins_back(inner, stroker, v, 0, v.size());
  return {outer.line, inner.line};
}

std::vector<Polyline> band(Stroker& stroker, const Vertices& v) {
  Outline around;
  const unsigned last = v.size() - 1;
  stroker.calc_cap(around, v[0], v[1], v[0].dist);
  add_joins(around, stroker, v, 1, last);
  stroker.calc_cap(around, v[last], v[last - 1], v[last - 1].dist);
  add_joins_back(around, stroker, v, 1, last);
  return {around.line};
}

}  // namespace

std::vector<Polyline> flattened(const Path& path, double scale) {
  std::vector<Polyline> lines;
  const Point* next = path.points.data();
  for (const Path::Verb verb : path.verbs) {
    switch (verb) {
      case Path::Verb::move:
        lines.push_back({{at(*next++)}, false});
        break;
      case Path::Verb::line:
        lines.back().places.push_back(at(*next++));
        break;
      case Path::Verb::cubic:
        add_curve(lines.back().places, at(next[0]), at(next[1]), at(next[2]), scale);
        next += 3;
        break;
      case Path::Verb::close:
        lines.back().closed = true;
        break;
    }
  }
  return lines;
}

std::vector<Polyline> stroked(const Polyline& line, double width, double scale) {
  Vertices vertices;
  for (const Place& place : line.places) vertices.add({place.x, place.y});
  vertices.close(line.closed);
  if (vertices.size() < 2) return {};
  Stroker stroker;
  stroker.width(width);
  stroker.line_cap(agg::round_cap);
  stroker.line_join(agg::round_join);
  stroker.inner_join(agg::inner_round);
  stroker.approximation_scale(scale);
  return line.closed && vertices.size() > 2 ? ring(stroker, vertices) : band(stroker, vertices);
}

}  // namespace tombrello::raster
