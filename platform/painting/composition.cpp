#include "painting/composition.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace tombrello::painting {
namespace {

PixelSize size_of(const PixelRect& rect) {
  return {rect.width(), rect.height()};
}

Look look_of(const PictureItem& item, const PixelRect& place) {
  return {item.picture, item.mirrored_x, item.mirrored_y, size_of(place)};
}

// An outline is as thick as a unit, and never thinner than a pixel.
PixelRect inside_of_frame(const PixelRect& box, double scale) {
  return box.grown(-std::max(1, static_cast<int>(std::lround(scale))));
}

PixelRect pixels_of(const Item& item, const TableGeometry& geometry, const Letters& letters) {
  if (const auto* box = std::get_if<BoxItem>(&item)) return geometry.pixels(box->area);
  if (const auto* picture = std::get_if<PictureItem>(&item)) {
    return geometry.picture_pixels(picture->area);
  }
  return letters.pixels(std::get<TextItem>(item), geometry);
}

/// Walks the items from the top down and hands each pixel to those that show there, so that
/// nothing is painted where something opaque covers it; then paints them from the bottom up.
class Composition {
 public:
  Composition(Canvas& canvas, const Letters& letters, const Surface& surface,
              const TableGeometry& geometry, PictureCache& pictures, Patience patience)
      : canvas_(canvas),
        letters_(letters),
        surface_(surface),
        geometry_(geometry),
        pictures_(pictures),
        patience_(patience) {}

  Region paint(const Region& exposed) {
    const Region uncovered = look_down(exposed);
    for (const PixelRect& part : uncovered.rects()) canvas_.fill(part, surface_.background());
    std::for_each(layers_.rbegin(), layers_.rend(), [&](const Layer& layer) {
      std::visit([&](const auto& item) { paint(item, layer); }, *layer.item);
    });
    return std::move(drafts_);
  }

 private:
  struct Layer {
    const Item* item;
    PixelRect place;
    Region visible;
    const PictureCache::Rendered* picture = nullptr;
  };

  // Answers where the background shows.
  Region look_down(const Region& exposed) {
    Region open = exposed;
    const PixelRect bounds = exposed.bounds().intersected(geometry_.table());
    const auto& items = surface_.items();
    for (auto item = items.rbegin(); item != items.rend() && !open.empty(); ++item) {
      Layer layer{&*item, pixels_of(*item, geometry_, letters_), {}};
      const auto* box = std::get_if<BoxItem>(&*item);
      if (box != nullptr && box->filled) erasers_.push_back(layer.place);
      const PixelRect shown = layer.place.intersected(bounds);
      if (shown.empty()) continue;
      layer.visible = open.intersected(shown);
      if (layer.visible.empty()) continue;
      open.subtract(std::visit([&](const auto& kind) { return opaque_part(kind, layer); }, *item));
      layers_.push_back(std::move(layer));
    }
    return open;
  }

  Region opaque_part(const BoxItem& item, Layer& layer) const {
    if (!item.filled) layer.visible.subtract(inside_of_frame(layer.place, geometry_.scale()));
    return layer.visible;
  }
  Region opaque_part(const TextItem&, Layer&) const { return {}; }
  Region opaque_part(const PictureItem& item, Layer& layer) {
    erase_what_reaches_further(item, layer);
    const Look look = look_of(item, layer.place);
    layer.picture = pictures_.find(look);
    if (layer.picture == nullptr && std::chrono::steady_clock::now() > patience_) {
      layer.picture = pictures_.stand_in(look);
      if (layer.picture != nullptr) {
        drafts_.add(layer.visible);
        return {};
      }
    }
    if (layer.picture == nullptr) layer.picture = &pictures_.rendered(look);
    Region hidden;
    for (const PixelRect& part : layer.picture->opaque.rects()) {
      hidden.add(layer.visible.intersected(part.moved(layer.place.left, layer.place.top)));
    }
    return hidden;
  }

  // Since pictures of a kind have one size, one may reach a pixel further than its area does. What
  // a box erases down to the area's edge it erases to the edge of the picture.
  void erase_what_reaches_further(const PictureItem& item, Layer& layer) const {
    const PixelRect area = geometry_.pixels(item.area);
    if (area.contains(layer.place)) return;
    for (PixelRect box : erasers_) {
      if (!box.meets(area)) continue;
      if (box.bottom >= area.bottom) box.bottom = std::max(box.bottom, layer.place.bottom);
      if (box.right >= area.right) box.right = std::max(box.right, layer.place.right);
      layer.visible.subtract(box);
    }
  }

  void paint(const BoxItem& item, const Layer& layer) {
    for (const PixelRect& part : layer.visible.rects()) canvas_.fill(part, item.colour);
  }
  void paint(const PictureItem&, const Layer& layer) {
    canvas_.picture(layer.picture->image, layer.place, layer.visible);
  }
  void paint(const TextItem& item, const Layer& layer) {
    canvas_.text(item, geometry_, layer.visible);
  }

  Canvas& canvas_;
  const Letters& letters_;
  const Surface& surface_;
  const TableGeometry& geometry_;
  PictureCache& pictures_;
  Patience patience_;
  std::vector<Layer> layers_;
  std::vector<PixelRect> erasers_;  ///< filled boxes, those above first
  Region drafts_;
};

}  // namespace

// A box may erase a pixel further than it reaches.
Region changed_pixels(const Surface::Changes& changes, const TableGeometry& geometry,
                      const Letters& letters, const PixelRect& room) {
  if (changes.everything) return room;
  Region region;
  for (const Item& item : changes.items) {
    PixelRect rect = pixels_of(item, geometry, letters);
    if (std::holds_alternative<BoxItem>(item)) {
      ++rect.right;
      ++rect.bottom;
    }
    region.add(rect.intersected(room));
  }
  return region;
}

Region paint_surface(Canvas& canvas, const Letters& letters, const Surface& surface,
                     const TableGeometry& geometry, const Region& exposed, PictureCache& pictures,
                     Patience patience) {
  return Composition(canvas, letters, surface, geometry, pictures, patience).paint(exposed);
}

}  // namespace tombrello::painting
