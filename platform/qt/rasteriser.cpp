#include "qt/rasteriser.h"

#include <QPainter>
#include <QPainterPath>

namespace tombrello::qt {
namespace {

QPointF at(Point point) {
  return {point.x, point.y};
}

QColor colour(Rgba c) {
  return {c.r, c.g, c.b, c.a};
}

QPainterPath outline(const Shape& shape) {
  QPainterPath path;
  path.setFillRule(shape.even_odd ? Qt::OddEvenFill : Qt::WindingFill);
  const Point* next = shape.path.points.data();
  for (const Path::Verb verb : shape.path.verbs) {
    switch (verb) {
      case Path::Verb::move:
        path.moveTo(at(*next++));
        break;
      case Path::Verb::line:
        path.lineTo(at(*next++));
        break;
      case Path::Verb::cubic:
        path.cubicTo(at(next[0]), at(next[1]), at(next[2]));
        next += 3;
        break;
      case Path::Verb::close:
        path.closeSubpath();
        break;
    }
  }
  return path;
}

QBrush with_stops(QGradient gradient, const Paint& paint) {
  for (const Stop& stop : paint.stops) gradient.setColorAt(stop.at, colour(stop.colour));
  return gradient;
}

QBrush brush(const Paint& paint) {
  if (paint.stops.empty()) return colour(paint.colour);
  switch (paint.kind) {
    case Paint::Kind::linear:
      return with_stops(QLinearGradient(at(paint.from), at(paint.to)), paint);
    case Paint::Kind::radial:
      return with_stops(QRadialGradient(at(paint.from), paint.radius), paint);
    case Paint::Kind::plain:
      break;
  }
  return colour(paint.colour);
}

QPen pen(const Shape& shape) {
  if (shape.stroke_width <= 0) return Qt::NoPen;
  return {colour(shape.stroke), shape.stroke_width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

}  // namespace

QImage rasterise(const Drawing& drawing, int w, int h) {
  QImage image(w, h, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  if (drawing.width <= 0 || drawing.height <= 0) return image;
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(w / static_cast<double>(drawing.width), h / static_cast<double>(drawing.height));
  for (const Shape& shape : drawing.shapes) {
    painter.setBrush(shape.filled ? brush(shape.fill) : QBrush(Qt::NoBrush));
    painter.setPen(pen(shape));
    painter.drawPath(outline(shape));
  }
  return image;
}

}  // namespace tombrello::qt
