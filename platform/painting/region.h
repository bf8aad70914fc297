#pragma once

#include <vector>

namespace tombrello::painting {

/// Pixels from `left` and `top` up to, but without, `right` and `bottom`.
struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  int width() const { return right - left; }
  int height() const { return bottom - top; }
  bool empty() const { return left >= right || top >= bottom; }
  bool contains(const PixelRect& other) const;
  bool meets(const PixelRect& other) const;  ///< they share a pixel
  PixelRect moved(int dx, int dy) const;
  PixelRect grown(int pixels) const;                    ///< to each side
  PixelRect united(const PixelRect& other) const;       ///< the smallest that holds both
  PixelRect intersected(const PixelRect& other) const;  ///< empty if they share none

  bool operator==(const PixelRect&) const = default;
};

/// Any set of pixels, as rectangles that don't overlap.
class Region {
 public:
  Region() = default;
  Region(const PixelRect& rect) { add(rect); }  // NOLINT: a rectangle is a region

  bool empty() const { return rects_.empty(); }
  const std::vector<PixelRect>& rects() const { return rects_; }
  PixelRect bounds() const;

  void add(const PixelRect& rect);
  void add(const Region& other);
  void subtract(const PixelRect& rect);
  void subtract(const Region& other);
  Region intersected(const PixelRect& rect) const;
  Region moved(int dx, int dy) const;

 private:
  std::vector<PixelRect> rects_;
};

}  // namespace tombrello::painting
