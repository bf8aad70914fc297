#include "qt/icon.h"

#include <QIconEngine>
#include <QPainter>
#include <utility>

#include "qt/rasteriser.h"

namespace tombrello::qt {
namespace {

class Engine : public QIconEngine {
 public:
  explicit Engine(IconSource source) : source_(std::move(source)) {}

  QIconEngine* clone() const override { return new Engine(*this); }
  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
    QList<QSize> sizes;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) sizes.append({size, size});
    return sizes;
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override {
    return QPixmap::fromImage(image(size));
  }
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
    painter->drawImage(rect, image(rect.size()));
  }

 private:
  QImage image(const QSize& size) const {
    return rasterise(source_(size.width()), size.width(), size.height());
  }

  IconSource source_;
};

}  // namespace

QIcon drawn_icon(IconSource source) {
  return QIcon(new Engine(std::move(source)));
}

}  // namespace tombrello::qt
