#include "pictures/figure.h"

#include <algorithm>
#include <cmath>

namespace tombrello::art {
namespace {

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
