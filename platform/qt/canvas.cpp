#include "qt/canvas.h"

#include "qt/geometry.h"
#include "qt/text_style.h"

namespace tombrello::qt {
namespace {

using painting::PixelRect;
using painting::Region;

// setClipping(false) would make the raster engine ignore the next region of several rectangles.
class ClipTo {
 public:
  ClipTo(QPainter& painter, const Region& region) : painter_(painter) {
    painter_.save();
    painter_.setClipRegion(to_qregion(region));
  }
  ~ClipTo() { painter_.restore(); }
  ClipTo(const ClipTo&) = delete;
  ClipTo& operator=(const ClipTo&) = delete;

 private:
  QPainter& painter_;
};

}  // namespace

QColor to_qcolor(Colour colour) {
  return QColor::fromRgb(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
}

QImage view_of(const raster::Bitmap& bitmap) {
  const auto* const bytes = reinterpret_cast<const uchar*>(bitmap.pixels.data());
  return {bytes, bitmap.width, bitmap.height, QImage::Format_ARGB32_Premultiplied};
}

PixelRect QtLetters::pixels(const TextItem& item, const painting::TableGeometry& geometry) const {
  const QRect touched = text_pixels(item, geometry);
  return {touched.left(), touched.top(), touched.right() + 1, touched.bottom() + 1};
}

void QtCanvas::fill(const PixelRect& rect, Colour colour) {
  painter_.fillRect(to_qrect(rect), to_qcolor(colour));
}

void QtCanvas::picture(const raster::Bitmap& bitmap, const PixelRect& place,
                       const Region& visible) {
  const QImage image = view_of(bitmap);
  if (image.width() != place.width() || image.height() != place.height()) {
    const ClipTo clip(painter_, visible);
    painter_.drawImage(to_qrect(place), image);
    return;
  }
  for (const PixelRect& part : visible.rects()) {
    painter_.drawImage(QPoint(part.left, part.top), image,
                       to_qrect(part.moved(-place.left, -place.top)));
  }
}

void QtCanvas::text(const TextItem& item, const painting::TableGeometry& geometry,
                    const Region& visible) {
  const ClipTo clip(painter_, visible);
  const QFont font = table_font(item.font, geometry);
  painter_.setFont(font);
  painter_.setPen(to_qcolor(item.colour));
  painter_.drawText(text_baseline(item, font, geometry), QString::fromStdString(item.text));
}

}  // namespace tombrello::qt
