#include "painting/region.h"

#include <algorithm>
#include <utility>

namespace tombrello::painting {

bool PixelRect::contains(const PixelRect& other) const {
  return left <= other.left && top <= other.top && right >= other.right && bottom >= other.bottom;
}

bool PixelRect::meets(const PixelRect& other) const {
  return !intersected(other).empty();
}

PixelRect PixelRect::moved(int dx, int dy) const {
  return {left + dx, top + dy, right + dx, bottom + dy};
}

PixelRect PixelRect::grown(int pixels) const {
  return {left - pixels, top - pixels, right + pixels, bottom + pixels};
}

PixelRect PixelRect::united(const PixelRect& other) const {
  if (empty()) return other;
  if (other.empty()) return *this;
  return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
          std::max(bottom, other.bottom)};
}

PixelRect PixelRect::intersected(const PixelRect& other) const {
  return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
          std::min(bottom, other.bottom)};
}

PixelRect Region::bounds() const {
  PixelRect all;
  for (const PixelRect& rect : rects_) all = all.united(rect);
  return all;
}

void Region::add(const PixelRect& rect) {
  if (rect.empty()) return;
  subtract(rect);
  rects_.push_back(rect);
}

void Region::add(const Region& other) {
  for (const PixelRect& rect : other.rects_) add(rect);
}

// What is left of a rectangle lies above, below, to the left and to the right of the other.
void Region::subtract(const PixelRect& rect) {
  std::vector<PixelRect> left;
  left.reserve(rects_.size() + 3);
  for (const PixelRect& r : rects_) {
    const PixelRect hole = r.intersected(rect);
    if (hole.empty()) {
      left.push_back(r);
      continue;
    }
    for (const PixelRect& part : {PixelRect{r.left, r.top, r.right, hole.top},
                                  PixelRect{r.left, hole.bottom, r.right, r.bottom},
                                  PixelRect{r.left, hole.top, hole.left, hole.bottom},
                                  PixelRect{hole.right, hole.top, r.right, hole.bottom}}) {
      if (!part.empty()) left.push_back(part);
    }
  }
  rects_ = std::move(left);
}

void Region::subtract(const Region& other) {
  for (const PixelRect& rect : other.rects_) subtract(rect);
}

Region Region::intersected(const PixelRect& rect) const {
  Region result;
  for (const PixelRect& r : rects_) {
    const PixelRect both = r.intersected(rect);
    if (!both.empty()) result.rects_.push_back(both);
  }
  return result;
}

Region Region::moved(int dx, int dy) const {
  Region result = *this;
  for (PixelRect& rect : result.rects_) rect = rect.moved(dx, dy);
  return result;
}

}  // namespace tombrello::painting
