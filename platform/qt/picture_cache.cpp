#include "qt/picture_cache.h"

#include <QTransform>
#include <algorithm>
#include <tuple>

#include "qt/rasteriser.h"

namespace tombrello::qt {
namespace {

bool lies(PictureSet set) {
  return set == PictureSet::cartao || set == PictureSet::dorsoo;
}

auto kind(const Look& look) {
  return std::tuple(look.picture.set, look.picture.index, look.mirrored_x, look.mirrored_y);
}

bool opaque(const QImage& image, const QRect& part) {
  for (int y = part.top(); y <= part.bottom(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    const auto solid = [](QRgb pixel) { return qAlpha(pixel) == 255; };
    if (!std::all_of(row + part.left(), row + part.right() + 1, solid)) return false;
  }
  return true;
}

// A cross: everything but four corner squares and perhaps a rim of one half-covered pixel. The
// corners' size is looked for; a picture with other holes counts as see-through.
QRegion opaque_part(const QImage& image) {
  for (const int rim : {0, 1}) {
    const QRect core = image.rect().adjusted(rim, rim, -rim, -rim);
    const int most = std::min(core.width(), core.height()) / 4;
    for (int corner = 0; corner <= most; ++corner) {
      const QRect upright = core.adjusted(corner, 0, -corner, 0);
      const QRect lying = core.adjusted(0, corner, 0, -corner);
      if (opaque(image, upright) && opaque(image, lying)) return QRegion(upright) + lying;
    }
  }
  return {};
}

}  // namespace

bool PictureCache::Order::operator()(const Look& a, const Look& b) const {
  const auto pixels = [](const Look& look) {
    return std::pair(look.size.width(), look.size.height());
  };
  return std::tuple(kind(a), pixels(a)) < std::tuple(kind(b), pixels(b));
}

QImage PictureCache::render(const Look& look) const {
  const bool lying = lies(look.picture.set);
  const QSize upright = lying ? look.size.transposed() : look.size;
  QImage image = rasterise(source_(look.picture), upright.width(), upright.height());
  if (lying) image = image.transformed(QTransform().rotate(90));
  if (look.mirrored_x || look.mirrored_y) {
    image = image.mirrored(look.mirrored_x, look.mirrored_y);
  }
  return image;
}

const PictureCache::Rendered* PictureCache::find(const Look& look) {
  const auto found = pictures_.find(look);
  if (found == pictures_.end()) return nullptr;
  found->second.round = round_;
  return &found->second;
}

const PictureCache::Rendered& PictureCache::rendered(const Look& look) {
  if (const Rendered* ready = find(look)) return *ready;
  QImage image = render(look);
  QRegion solid = opaque_part(image);
  return pictures_.insert_or_assign(look, Rendered{std::move(image), std::move(solid), round_})
      .first->second;
}

const PictureCache::Rendered* PictureCache::stand_in(const Look& look) const {
  Look any = look;
  any.size = QSize(0, 0);
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
    sum += static_cast<std::size_t>(picture.image.sizeInBytes());
  }
  return sum;
}

}  // namespace tombrello::qt
