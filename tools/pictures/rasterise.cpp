#include "tools/pictures/rasterise.h"

#include <QPainter>
#include <QPainterPath>

using namespace tombrello;

namespace {

QColor colour_of(Rgba c) {
  return {c.r, c.g, c.b, c.a};
}
QPointF point_of(Point p) {
  return {p.x, p.y};
}

QPainterPath path_of(const Shape& shape) {
  QPainterPath path;
  path.setFillRule(shape.even_odd ? Qt::OddEvenFill : Qt::WindingFill);
  const Point* p = shape.path.points.data();
  for (const Path::Verb verb : shape.path.verbs) {
    switch (verb) {
      case Path::Verb::move:
        path.moveTo(point_of(*p++));
        break;
      case Path::Verb::line:
        path.lineTo(point_of(*p++));
        break;
      case Path::Verb::cubic:
        path.cubicTo(point_of(p[0]), point_of(p[1]), point_of(p[2]));
        p += 3;
        break;
      case Path::Verb::close:
        path.closeSubpath();
        break;
    }
  }
  return path;
}

QBrush brush_of(const Paint& paint) {
  if (paint.stops.empty()) return colour_of(paint.colour);
  QGradient gradient = paint.kind == Paint::Kind::linear
                           ? QGradient(QLinearGradient(point_of(paint.from), point_of(paint.to)))
                           : QGradient(QRadialGradient(point_of(paint.from), paint.radius));
  for (const Stop& stop : paint.stops) {
    gradient.setColorAt(static_cast<qreal>(stop.at), colour_of(stop.colour));
  }
  return gradient;
}

}  // namespace

QImage rasterise(const Drawing& drawing, int width, int height) {
  QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(width / static_cast<qreal>(drawing.width),
                height / static_cast<qreal>(drawing.height));
  for (const Shape& shape : drawing.shapes) {
    painter.setBrush(shape.filled ? brush_of(shape.fill) : QBrush(Qt::NoBrush));
    painter.setPen(shape.stroke_width > 0
                       ? QPen(colour_of(shape.stroke), static_cast<qreal>(shape.stroke_width),
                              Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)
                       : QPen(Qt::NoPen));
    painter.drawPath(path_of(shape));
  }
  return image;
}
