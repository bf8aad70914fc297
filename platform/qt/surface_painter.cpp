#include "qt/surface_painter.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "qt/text_style.h"

namespace tombrello::qt {
namespace {

Look look_of(const PictureItem& item, QSize size) {
  return {item.picture, item.mirrored_x, item.mirrored_y, size};
}

// An outline is as thick as a unit, and never thinner than a pixel.
QRegion frame(const QRect& box, double scale) {
  const int line = std::max(1, qRound(scale));
  return QRegion(box) - QRegion(box.adjusted(line, line, -line, -line));
}

// setClipping(false) would make the raster engine ignore the next region of several rectangles.
class ClipTo {
 public:
  ClipTo(QPainter& painter, const QRegion& region) : painter_(painter) {
    painter_.save();
    painter_.setClipRegion(region);
  }
  ~ClipTo() { painter_.restore(); }
  ClipTo(const ClipTo&) = delete;
  ClipTo& operator=(const ClipTo&) = delete;

 private:
  QPainter& painter_;
};

/// Walks the items from the top down and hands each pixel to those that show there, so that
/// nothing is painted where something opaque covers it; then paints them from the bottom up.
class Composition {
 public:
  Composition(QPainter& painter, const Surface& surface, const TableGeometry& geometry,
              PictureCache& pictures, QDeadlineTimer patience)
      : painter_(painter),
        surface_(surface),
        geometry_(geometry),
        pictures_(pictures),
        patience_(patience) {}

  QRegion paint(const QRegion& exposed) {
    const QRegion uncovered = look_down(exposed);
    const QColor background = to_qcolor(surface_.background());
    for (const QRect& part : uncovered) painter_.fillRect(part, background);
    std::for_each(layers_.rbegin(), layers_.rend(), [&](const Layer& layer) {
      std::visit([&](const auto& item) { paint(item, layer); }, *layer.item);
    });
    return drafts_;
  }

 private:
  struct Layer {
    const Item* item;
    QRect place;
    QRegion visible;
    const PictureCache::Rendered* picture = nullptr;
  };

  // Answers where the background shows.
  QRegion look_down(const QRegion& exposed) {
    QRegion open = exposed;
    const auto& items = surface_.items();
    for (auto item = items.rbegin(); item != items.rend() && !open.isEmpty(); ++item) {
      Layer layer{&*item, pixels_of(*item, geometry_), {}};
      const auto* box = std::get_if<BoxItem>(&*item);
      if (box != nullptr && box->filled) erasers_.push_back(layer.place);
      const QRect on_table = layer.place & geometry_.table() & open.boundingRect();
      if (on_table.isEmpty()) continue;
      layer.visible = open & on_table;
      if (layer.visible.isEmpty()) continue;
      open -= std::visit([&](const auto& kind) { return opaque_part(kind, layer); }, *item);
      layers_.push_back(std::move(layer));
    }
    return open;
  }

  QRegion opaque_part(const BoxItem& item, Layer& layer) {
    if (!item.filled) layer.visible &= frame(layer.place, geometry_.scale());
    return layer.visible;
  }
  QRegion opaque_part(const TextItem&, Layer&) { return {}; }
  // Since pictures of a kind have one size, one may reach a pixel further than its area does. What
  // a box erases down to the area's edge it erases to the edge of the picture.
  void erase_what_reaches_further(const PictureItem& item, Layer& layer) const {
    const QRect area = geometry_.pixels(item.area);
    if (area.contains(layer.place)) return;
    for (QRect box : erasers_) {
      if (!box.intersects(area)) continue;
      if (box.bottom() >= area.bottom())
        box.setBottom(std::max(box.bottom(), layer.place.bottom()));
      if (box.right() >= area.right()) box.setRight(std::max(box.right(), layer.place.right()));
      layer.visible -= box;
    }
  }

  QRegion opaque_part(const PictureItem& item, Layer& layer) {
    erase_what_reaches_further(item, layer);
    const Look look = look_of(item, layer.place.size());
    layer.picture = pictures_.find(look);
    if (layer.picture == nullptr && patience_.hasExpired()) {
      layer.picture = pictures_.stand_in(look);
      if (layer.picture != nullptr) {
        drafts_ += layer.visible;
        return {};
      }
    }
    if (layer.picture == nullptr) layer.picture = &pictures_.rendered(look);
    return layer.visible & layer.picture->opaque.translated(layer.place.topLeft());
  }

  void paint(const BoxItem& item, const Layer& layer) {
    const QColor colour = to_qcolor(item.colour);
    for (const QRect& part : layer.visible) painter_.fillRect(part, colour);
  }

  void paint(const PictureItem&, const Layer& layer) {
    const QImage& image = layer.picture->image;
    if (image.size() != layer.place.size()) {
      const ClipTo clip(painter_, layer.visible);
      painter_.drawImage(layer.place, image);
      return;
    }
    for (const QRect& part : layer.visible) {
      painter_.drawImage(part.topLeft(), image, part.translated(-layer.place.topLeft()));
    }
  }

  void paint(const TextItem& item, const Layer& layer) {
    const ClipTo clip(painter_, layer.visible);
    painter_.setFont(table_font(item.font, geometry_));
    painter_.setPen(to_qcolor(item.colour));
    painter_.drawText(text_place(item, geometry_).baseline, QString::fromStdString(item.text));
  }

  QPainter& painter_;
  const Surface& surface_;
  const TableGeometry& geometry_;
  PictureCache& pictures_;
  QDeadlineTimer patience_;
  std::vector<Layer> layers_;
  std::vector<QRect> erasers_;  ///< filled boxes, those above first
  QRegion drafts_;
};

}  // namespace

QColor to_qcolor(Colour colour) {
  return QColor::fromRgb(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
}

QRect pixels_of(const Item& item, const TableGeometry& geometry) {
  if (const auto* box = std::get_if<BoxItem>(&item)) return geometry.pixels(box->area);
  if (const auto* picture = std::get_if<PictureItem>(&item)) {
    return geometry.picture_pixels(picture->area);
  }
  return text_place(std::get<TextItem>(item), geometry).pixels;
}

QRect changed_pixels(const Item& item, const TableGeometry& geometry) {
  const bool may_erase = std::holds_alternative<BoxItem>(item);
  return pixels_of(item, geometry).adjusted(0, 0, may_erase ? 1 : 0, may_erase ? 1 : 0);
}

QRegion paint_surface(QPainter& painter, const Surface& surface, const TableGeometry& geometry,
                      const QRegion& exposed, PictureCache& pictures, QDeadlineTimer patience) {
  return Composition(painter, surface, geometry, pictures, patience).paint(exposed);
}

}  // namespace tombrello::qt
