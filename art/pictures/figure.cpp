#include "pictures/figure.h"

#include <algorithm>
#include <cmath>

namespace tombrello::art {
namespace {

// The corners of an outline's first part, its curves taken in short steps.
std::vector<Point> corners_of(const Path& path) {
  std::vector<Point> corners;
  const Point* next = path.points.data();
  for (const Path::Verb verb : path.verbs) {
    if (verb == Path::Verb::close) break;
    if (verb != Path::Verb::cubic) {
      corners.push_back(*next++);
      continue;
    }
    const Point from = corners.back();
    for (const float t : {0.2F, 0.4F, 0.6F, 0.8F, 1.0F}) {
      const float u = 1 - t;
      const auto mix = [&](float a, float b, float c, float d) {
        return u * u * u * a + 3 * u * u * t * b + 3 * u * t * t * c + t * t * t * d;
      };
      corners.push_back({mix(from.x, next[0].x, next[1].x, next[2].x),
                         mix(from.y, next[0].y, next[1].y, next[2].y)});
    }
    next += 3;
  }
  return corners;
}

bool within(const std::vector<Point>& corners, Point p) {
  bool inside = false;
  for (std::size_t i = 0, j = corners.size() - 1; i < corners.size(); j = i++) {
    const Point a = corners[i];
    const Point b = corners[j];
    if ((a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x) {
      inside = !inside;
    }
  }
  return inside;
}

// Whether the motif lies in the cloth with a little room around.
bool fits(const std::vector<Point>& cloth, const Path& motif, Point place) {
  constexpr float kRoom = 1.12F;
  return std::all_of(motif.points.begin(), motif.points.end(), [&](Point p) {
    return within(cloth, {place.x + p.x * kRoom, place.y + p.y * kRoom});
  });
}

}  // namespace

void Figure::inked(const Path& path, Rgba colour, float width) {
  art::inked(drawing_, moved(path, at), colour, width, court::kInk);
}

void Figure::shaded(std::string_view path, Rgba colour, std::string_view part) {
  plain(path, colour);
  plain(part, court::kFold);
  line(path, 0.75F, court::kInk);
}

void Figure::plain(const Path& path, Rgba colour) {
  fill(drawing_, moved(path, at), colour);
}

void Figure::line(const Path& path, float width, Rgba colour) {
  art::line(drawing_, moved(path, at), width, colour);
}

void Figure::sprinkle(const Path& motif, const std::vector<Point>& places, Rgba colour) {
  Path all;
  for (const Point& place : places) join(all, moved(motif, shift(place.x, place.y)));
  plain(all, colour);
}

void Figure::studs(float radius, const std::vector<Point>& places, Rgba colour) {
  for (const Point& place : places) fine(circle(place, radius), colour);
}

void Figure::figured(std::string_view cloth, const Path& motif, Point step, Rgba colour) {
  const std::vector<Point> corners = corners_of(outline(cloth));
  const auto [left, right] = std::minmax_element(corners.begin(), corners.end(),
                                                 [](Point a, Point b) { return a.x < b.x; });
  const auto [top, bottom] = std::minmax_element(corners.begin(), corners.end(),
                                                 [](Point a, Point b) { return a.y < b.y; });
  const int last = static_cast<int>(bottom->y / step.y);
  for (int row = static_cast<int>(top->y / step.y); row <= last; ++row) {
    const float y = step.y * static_cast<float>(row);
    const float stagger = row % 2 != 0 ? step.x / 2 : 0;
    std::vector<Point> places;  // a shape for each row paints faster than one for all
    for (float x = std::floor(left->x / step.x) * step.x + stagger; x < right->x; x += step.x) {
      if (fits(corners, motif, {x, y})) places.push_back({x, y});
    }
    if (!places.empty()) sprinkle(motif, places, colour);
  }
}

}  // namespace tombrello::art
