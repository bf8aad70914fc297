#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>

#include "painting/composition.h"

namespace tombrello::qt {

QColor to_qcolor(Colour colour);
/// The same pixels, which must outlive it.
QImage view_of(const raster::Bitmap& bitmap);

class QtLetters : public painting::Letters {
 public:
  painting::PixelRect pixels(const TextItem& item,
                             const painting::TableGeometry& geometry) const override;
};

/// Paints by a painter that counts in the table's pixels.
class QtCanvas : public painting::Canvas {
 public:
  explicit QtCanvas(QPainter& painter) : painter_(painter) {}

  void fill(const painting::PixelRect& rect, Colour colour) override;
  void picture(const raster::Bitmap& image, const painting::PixelRect& place,
               const painting::Region& visible) override;
  void text(const TextItem& item, const painting::TableGeometry& geometry,
            const painting::Region& visible) override;

 private:
  QPainter& painter_;
};

}  // namespace tombrello::qt
