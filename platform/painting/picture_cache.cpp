#include "painting/picture_cache.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "raster/rasteriser.h"

namespace tombrello::painting {
namespace {

using raster::Bitmap;

bool lies(PictureSet set) {
  return set == PictureSet::cartao || set == PictureSet::dorsoo;
}

auto kind(const Look& look) {
  return std::tuple(look.picture.set, look.picture.index, look.mirrored_x, look.mirrored_y);
}

bool opaque(const Bitmap& image, const PixelRect& part) {
  for (int y = part.top; y < part.bottom; ++y) {
    const auto solid = [](std::uint32_t pixel) { return pixel >> 24 == 255; };
    if (!std::all_of(image.row(y) + part.left, image.row(y) + part.right, solid)) return false;
  }
  return true;
}

// A cross: everything but four corner squares and perhaps a rim of one half-covered pixel. The
// corners' size is looked for; a picture with other holes counts as see-through.
Region opaque_part(const Bitmap& image) {
  for (const int rim : {0, 1}) {
    const PixelRect core = PixelRect{0, 0, image.width, image.height}.grown(-rim);
    const int most = std::min(core.width(), core.height()) / 4;
    for (int corner = 0; corner <= most; ++corner) {
      const PixelRect upright{core.left + corner, core.top, core.right - corner, core.bottom};
      const PixelRect lying{core.left, core.top + corner, core.right, core.bottom - corner};
      if (!opaque(image, upright) || !opaque(image, lying)) continue;
      Region cross(upright);
      cross.add(lying);
      return cross;
    }
  }
  return {};
}

}  // namespace

PictureCache::PictureCache(PictureSource source) : source_(std::move(source)) {}

bool PictureCache::Order::operator()(const Look& a, const Look& b) const {
  const auto pixels = [](const Look& look) { return std::pair(look.size.width, look.size.height); };
  return std::tuple(kind(a), pixels(a)) < std::tuple(kind(b), pixels(b));
}

Bitmap PictureCache::render(const Look& look) const {
  const Drawing drawing = source_(look.picture);
  const auto [width, height] = look.size;
  Bitmap image = lies(look.picture.set) ? quarter_turn(raster::rasterise(drawing, height, width))
                                        : raster::rasterise(drawing, width, height);
  return mirrored(std::move(image), look.mirrored_x, look.mirrored_y);
}

const PictureCache::Rendered* PictureCache::find(const Look& look) {
  const auto found = pictures_.find(look);
  if (found == pictures_.end()) return nullptr;
  found->second.round = round_;
  return &found->second;
}

const PictureCache::Rendered& PictureCache::rendered(const Look& look) {
  if (const Rendered* ready = find(look)) return *ready;
  Bitmap image = render(look);
  Region solid = opaque_part(image);
  return pictures_.insert_or_assign(look, Rendered{std::move(image), std::move(solid), round_})
      .first->second;
}

const PictureCache::Rendered* PictureCache::stand_in(const Look& look) const {
  Look any = look;
  any.size = {0, 0};
  const auto found = pictures_.lower_bound(any);
  if (found == pictures_.end() || kind(found->first) != kind(look)) return nullptr;
  return &found->second;
}

void PictureCache::drop_unused() {
  std::erase_if(pictures_, [&](const auto& entry) { return entry.second.round != round_; });
}

std::size_t PictureCache::bytes() const {
  std::size_t sum = 0;
  for (const auto& [look, picture] : pictures_) {
    sum += picture.image.pixels.size() * sizeof(std::uint32_t);
  }
  return sum;
}

}  // namespace tombrello::painting
