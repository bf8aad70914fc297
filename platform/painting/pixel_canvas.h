#pragma once

#include "painting/canvas.h"

namespace tombrello::painting {

/// Pixels in memory, in rows from the top, 0x00RRGGBB; the highest byte means nothing.
struct PixelMemory {
  std::uint32_t* pixels = nullptr;
  PixelSize size;

  std::uint32_t* row(int y) const { return pixels + static_cast<std::ptrdiff_t>(y) * size.width; }
  PixelRect bounds() const { return {0, 0, size.width, size.height}; }
};

/// Boxes and pictures into memory. Letters are up to whoever derives.
class PixelCanvas : public Canvas {
 public:
  explicit PixelCanvas(PixelMemory memory) : memory_(memory) {}

  void fill(const PixelRect& rect, Colour colour) override;
  void picture(const raster::Bitmap& image, const PixelRect& place, const Region& visible) override;

 protected:
  /// Called before pixels are touched: what letters there are must have reached the memory.
  virtual void finish_letters() {}

 private:
  PixelMemory memory_;
};

}  // namespace tombrello::painting
