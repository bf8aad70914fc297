#include "pictures/outline.h"

#include <charconv>
#include <cmath>
#include <numbers>
#include <utility>

namespace tombrello::art {
namespace {

// How far a cubic's controls stand off for a quarter of a circle of radius 1.
constexpr float kQuarter = 0.5523F;

Point between(Point a, Point b, float at) {
  return {a.x + (b.x - a.x) * at, a.y + (b.y - a.y) * at};
}

// One stretch of a smooth curve from b to c, whose neighbours are a and d.
void stretch(Path& path, Point a, Point b, Point c, Point d) {
  path.cubic({b.x + (c.x - a.x) / 6, b.y + (c.y - a.y) / 6},
             {c.x - (d.x - b.x) / 6, c.y - (d.y - b.y) / 6}, c);
}

class Reader {
 public:
  explicit Reader(std::string_view text) : at_(text.data()), end_(text.data() + text.size()) {}

  bool more() {
    skip();
    return at_ < end_;
  }
  bool at_letter() {
    skip();
    return at_ < end_ && *at_ >= 'A' && *at_ <= 'Z';
  }
  char letter() { return *at_++; }
  Point point() {
    const float x = number();
    return {x, number()};
  }

 private:
  void skip() {
    while (at_ < end_ && (*at_ == ' ' || *at_ == ',')) ++at_;
  }
  float number() {
    skip();
    float value = 0;
    const auto read = std::from_chars(at_, end_, value);
    at_ = read.ptr == at_ ? end_ : read.ptr;
    return value;
  }

  const char* at_;
  const char* end_;
};

void smooth(Path& path, Reader& reader) {
  std::vector<Point> points{path.points.back()};
  while (reader.more() && !reader.at_letter()) points.push_back(reader.point());
  const std::size_t last = points.size() - 1;
  for (std::size_t i = 0; i < last; ++i) {
    stretch(path, points[i == 0 ? 0 : i - 1], points[i], points[i + 1],
            points[i + 1 == last ? last : i + 2]);
  }
}

void piece(Path& path, Reader& reader, char verb) {
  const Point last = path.points.empty() ? Point{} : path.points.back();
  const Point first = reader.point();
  if (verb == 'M') {
    path.move(first);
  } else if (verb == 'L') {
    path.line(first);
  } else if (verb == 'Q') {
    const Point end = reader.point();
    path.cubic(between(last, first, 2.0F / 3), between(end, first, 2.0F / 3), end);
  } else {
    const Point second = reader.point();
    path.cubic(first, second, reader.point());
  }
}

}  // namespace

Point Affine::operator()(Point p) const {
  return {xx * p.x + xy * p.y + dx, yx * p.x + yy * p.y + dy};
}

Affine Affine::operator*(const Affine& first) const {
  const Point d = (*this)({first.dx, first.dy});
  return {xx * first.xx + xy * first.yx,
          xx * first.xy + xy * first.yy,
          yx * first.xx + yy * first.yx,
          yx * first.xy + yy * first.yy,
          d.x,
          d.y};
}

float Affine::scale() const {
  return std::sqrt(std::abs(xx * yy - xy * yx));
}

Affine shift(float dx, float dy) {
  return {1, 0, 0, 1, dx, dy};
}

Affine scaling(float x, float y) {
  return {x, 0, 0, y, 0, 0};
}

Affine turning(float degrees) {
  const float angle = degrees * std::numbers::pi_v<float> / 180;
  const float c = std::cos(angle);
  const float s = std::sin(angle);
  return {c, -s, s, c, 0, 0};
}

Affine half_turn(float width, float height) {
  return {-1, 0, 0, -1, width, height};
}

Path outline(std::string_view text) {
  Path path;
  Reader reader(text);
  char verb = 'M';
  while (reader.more()) {
    if (reader.at_letter()) verb = reader.letter();
    if (verb == 'Z') {
      path.close();
    } else if (verb == 'R') {
      smooth(path, reader);
    } else {
      piece(path, reader, verb);
    }
  }
  return path;
}

Path circle(Point centre, float radius) {
  return ellipse(centre, radius, radius);
}

Path ellipse(Point centre, float rx, float ry) {
  const float kx = rx * kQuarter;
  const float ky = ry * kQuarter;
  const auto [x, y] = centre;
  Path path;
  path.move({x, y - ry});
  path.cubic({x + kx, y - ry}, {x + rx, y - ky}, {x + rx, y});
  path.cubic({x + rx, y + ky}, {x + kx, y + ry}, {x, y + ry});
  path.cubic({x - kx, y + ry}, {x - rx, y + ky}, {x - rx, y});
  path.cubic({x - rx, y - ky}, {x - kx, y - ry}, {x, y - ry});
  path.close();
  return path;
}

Path rounded_box(float left, float top, float right, float bottom, float radius) {
  const float k = radius * (1 - kQuarter);
  Path path;
  path.move({left + radius, top});
  path.line({right - radius, top});
  path.cubic({right - k, top}, {right, top + k}, {right, top + radius});
  path.line({right, bottom - radius});
  path.cubic({right, bottom - k}, {right - k, bottom}, {right - radius, bottom});
  path.line({left + radius, bottom});
  path.cubic({left + k, bottom}, {left, bottom - k}, {left, bottom - radius});
  path.line({left, top + radius});
  path.cubic({left, top + k}, {left + k, top}, {left + radius, top});
  path.close();
  return path;
}

Path polygon(const std::vector<Point>& corners) {
  Path path;
  path.move(corners.front());
  for (std::size_t i = 1; i < corners.size(); ++i) path.line(corners[i]);
  path.close();
  return path;
}

Path loop(const std::vector<Point>& points) {
  const std::size_t n = points.size();
  Path path;
  path.move(points.front());
  for (std::size_t i = 0; i < n; ++i) {
    stretch(path, points[(i + n - 1) % n], points[i], points[(i + 1) % n], points[(i + 2) % n]);
  }
  path.close();
  return path;
}

Path petals(Point middle, int count, float inner, float outer, float width) {
  Path all;
  const float swell = inner + (outer - inner) * 0.6F;
  for (int i = 0; i < count; ++i) {
    Path petal;
    petal.points.reserve(8);
    petal.move({0, -inner});
    petal.cubic({-width, -swell}, {-width, -outer}, {0, -outer});
    petal.cubic({width, -outer}, {width, -swell}, {0, -inner});
    petal.close();
    const float angle = 360.0F * static_cast<float>(i) / static_cast<float>(count);
    join(all, moved(petal, shift(middle.x, middle.y) * turning(angle)));
  }
  return all;
}

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

Path moved(const Path& path, const Affine& by) {
  Path result = path;
  for (Point& p : result.points) p = by(p);
  return result;
}

void join(Path& onto, const Path& more) {
  onto.verbs.insert(onto.verbs.end(), more.verbs.begin(), more.verbs.end());
  onto.points.insert(onto.points.end(), more.points.begin(), more.points.end());
}

void fill(Drawing& drawing, Path path, Rgba colour) {
  Paint paint;
  paint.colour = colour;
  fill(drawing, std::move(path), std::move(paint));
}

void fill(Drawing& drawing, Path path, Paint paint) {
  Shape shape;
  shape.path = std::move(path);
  shape.fill = std::move(paint);
  drawing.shapes.push_back(std::move(shape));
}

void line(Drawing& drawing, Path path, float width, Rgba colour) {
  Shape shape;
  shape.path = std::move(path);
  shape.filled = false;
  shape.stroke_width = width;
  shape.stroke = colour;
  drawing.shapes.push_back(std::move(shape));
}

void inked(Drawing& drawing, Path path, Rgba colour, float width, Rgba ink) {
  fill(drawing, std::move(path), colour);
  drawing.shapes.back().stroke_width = width;
  drawing.shapes.back().stroke = ink;
}

void append(Drawing& drawing, const Drawing& picture, const Affine& by) {
  const float scale = by.scale();
  for (Shape shape : picture.shapes) {
    shape.path = moved(shape.path, by);
    shape.fill.from = by(shape.fill.from);
    shape.fill.to = by(shape.fill.to);
    shape.fill.radius *= scale;
    shape.stroke_width *= scale;
    drawing.shapes.push_back(std::move(shape));
  }
}

}  // namespace tombrello::art
