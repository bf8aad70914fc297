#include "raster/rasteriser.h"

#include <agg_pixfmt_rgba.h>
#include <agg_rasterizer_scanline_aa.h>
#include <agg_renderer_base.h>
#include <agg_renderer_scanline.h>
#include <agg_rendering_buffer.h>
#include <agg_scanline_u.h>
#include <agg_span_allocator.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cassert>
#include <cmath>
#include <new>
#include <system_error>
#include <thread>
#include <vector>

#include "raster/polylines.h"

namespace tombrello::raster {
namespace {

using Pixels = agg::pixfmt_bgra32_pre;
using Renderer = agg::renderer_base<Pixels>;

agg::rgba8 premultiplied(Rgba c) {
  return agg::rgba8(c.r, c.g, c.b, c.a).premultiply();
}

/// The colours of a gradient, pixel by pixel.
class Gradient {
 public:
  Gradient(const Paint& paint, Place scale) : paint_(paint), scale_(scale) {
    for (std::size_t i = 0; i < colours_.size(); ++i) {
      colours_[i] = colour_at(static_cast<double>(i) / static_cast<double>(colours_.size() - 1));
    }
    along_ = {static_cast<double>(paint.to.x - paint.from.x),
              static_cast<double>(paint.to.y - paint.from.y)};
    const double length = along_.x * along_.x + along_.y * along_.y;
    if (length > 0) along_ = {along_.x / length, along_.y / length};
  }

  void prepare() {}
  void generate(agg::rgba8* span, int x, int y, unsigned count) const {
    const Place start{(x + 0.5) / scale_.x - static_cast<double>(paint_.from.x),
                      (y + 0.5) / scale_.y - static_cast<double>(paint_.from.y)};
    for (unsigned i = 0; i < count; ++i) {
      const double at = place_of({start.x + i / scale_.x, start.y});
      const double last = static_cast<double>(colours_.size() - 1);
      span[i] = colours_[static_cast<std::size_t>(std::clamp(at, 0.0, 1.0) * last + 0.5)];
    }
  }

 private:
  // 0 to 1 from end to end.
  double place_of(Place p) const {
    if (paint_.kind == Paint::Kind::linear) return p.x * along_.x + p.y * along_.y;
    return std::sqrt(p.x * p.x + p.y * p.y) / static_cast<double>(paint_.radius);
  }

  agg::rgba8 colour_at(double place) const {
    const auto& stops = paint_.stops;
    const auto after = std::find_if(stops.begin(), stops.end(), [place](const Stop& stop) {
      return static_cast<double>(stop.at) >= place;
    });
    if (after == stops.begin()) return premultiplied(after->colour);
    if (after == stops.end()) return premultiplied(stops.back().colour);
    const Stop& before = *(after - 1);
    const double share =
        (place - static_cast<double>(before.at)) / static_cast<double>(after->at - before.at);
    const auto mixed = [share](std::uint8_t a, std::uint8_t b) {
      return static_cast<std::uint8_t>(std::lround(a + share * (b - a)));
    };
    const Rgba a = before.colour;
    const Rgba b = after->colour;
    return premultiplied({mixed(a.r, b.r), mixed(a.g, b.g), mixed(a.b, b.b), mixed(a.a, b.a)});
  }

  const Paint& paint_;
  Place scale_;  ///< pixels a unit
  Place along_;
  std::array<agg::rgba8, 512> colours_{};
};

/// Paints the rows from `top` up to `bottom`, which is the first that it leaves alone.
class Painter {
 public:
  Painter(Bitmap& bitmap, Place scale, int top, int bottom)
      : top_(top),
        bottom_(bottom),
        scale_(scale),
        line_scale_(std::max(scale.x, scale.y)),
        buffer_(reinterpret_cast<agg::int8u*>(bitmap.pixels.data()),
                static_cast<unsigned>(bitmap.width), static_cast<unsigned>(bitmap.height),
                bitmap.width * 4),
        pixels_(buffer_),
        renderer_(pixels_) {
    edges_.clip_box(0, top, bitmap.width, bottom);
    renderer_.clip_box(0, top, bitmap.width - 1, bottom - 1);
  }

  void paint(const Shape& shape) {
    if (!reaches_rows(shape)) return;
    const std::vector<Polyline> lines = flattened(shape.path, line_scale_);
    if (shape.filled) {
      edges_.filling_rule(shape.even_odd ? agg::fill_even_odd : agg::fill_non_zero);
      for (const Polyline& line : lines) add(line);
      fill(shape.fill);
    }
    if (shape.stroke_width > 0) stroke(lines, shape);
  }

 private:
  // A shape lies between its points.
  bool reaches_rows(const Shape& shape) const {
    const auto& points = shape.path.points;
    if (points.empty()) return false;
    const auto higher = [](Point a, Point b) { return a.y < b.y; };
    const auto [first, last] = std::minmax_element(points.begin(), points.end(), higher);
    const double around = static_cast<double>(shape.stroke_width) * line_scale_ / 2 + 1;
    return static_cast<double>(first->y) * scale_.y -
           around<bottom_&& static_cast<double>(last->y) * scale_.y + around> top_;
  }

  void add(const Polyline& line) {
    bool first = true;
    for (const Place& place : line.places) {
      const double x = place.x * scale_.x;
      const double y = place.y * scale_.y;
      first ? edges_.move_to_d(x, y) : edges_.line_to_d(x, y);
      first = false;
    }
  }

  void stroke(const std::vector<Polyline>& lines, const Shape& shape) {
    edges_.filling_rule(agg::fill_non_zero);
    for (const Polyline& line : lines) {
      const auto width = static_cast<double>(shape.stroke_width);
      for (const Polyline& outline : stroked(line, width, line_scale_)) add(outline);
    }
    fill_plain(shape.stroke);
  }

  void fill(const Paint& paint) {
    if (paint.stops.empty() || paint.kind == Paint::Kind::plain) return fill_plain(paint.colour);
    Gradient gradient(paint, scale_);
    agg::render_scanlines_aa(edges_, scanline_, renderer_, spans_, gradient);
    edges_.reset();
  }

  void fill_plain(Rgba colour) {
    agg::render_scanlines_aa_solid(edges_, scanline_, renderer_, premultiplied(colour));
    edges_.reset();
  }

  int top_;
  int bottom_;
  Place scale_;  ///< pixels a unit
  double line_scale_;
  agg::rendering_buffer buffer_;
  Pixels pixels_;
  Renderer renderer_;
  agg::rasterizer_scanline_aa<> edges_;
  agg::scanline_u8 scanline_;
  agg::span_allocator<agg::rgba8> spans_;
};

// A picture higher than a card is painted in bands of so many rows: enough that what is done for
// each band anew doesn't matter, few enough that no core is left with the fullest part.
constexpr int kHighest = 400;
constexpr int kBandRows = 120;

}  // namespace

Bitmap rasterise(const Drawing& drawing, int w, int h) {
  assert(w >= 1 && h >= 1);
  Bitmap bitmap(w, h);
  if (drawing.width <= 0 || drawing.height <= 0) return bitmap;
  const Place scale{w / static_cast<double>(drawing.width),
                    h / static_cast<double>(drawing.height)};
  const int bands = h <= kHighest ? 1 : h / kBandRows;
  std::atomic<int> next = 0;
  const auto paint_bands = [&] {
    for (int band = next++; band < bands; band = next++) {
      Painter painter(bitmap, scale, h * band / bands, h * (band + 1) / bands);
      for (const Shape& shape : drawing.shapes) painter.paint(shape);
    }
  };
  // A thread that gets no memory gives up, and the caller paints all once more.
  std::atomic<bool> gave_up = false;
  const auto help = [&] {
    try {
      paint_bands();
    } catch (const std::bad_alloc&) {
      gave_up = true;
    }
  };
  const int cores = std::min(bands, static_cast<int>(std::thread::hardware_concurrency()));
  std::vector<std::jthread> helpers;
  try {
    for (int core = 1; core < cores; ++core) helpers.emplace_back(help);
  } catch (const std::system_error&) {
    // No more threads are to be had: those that are paint all.
  }
  paint_bands();
  helpers.clear();
  if (gave_up) {  // somewhere in the middle of a band
    std::fill(bitmap.pixels.begin(), bitmap.pixels.end(), 0);
    next = 0;
    paint_bands();
  }
  return bitmap;
}

}  // namespace tombrello::raster
