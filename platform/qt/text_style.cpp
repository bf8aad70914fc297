#include "qt/text_style.h"

#include <QFontMetrics>
#include <QStringList>
#include <algorithm>

namespace tombrello::qt {

QFont control_font(const Font& font) {
  QFont result;
  if (font.name == "Brush Script MT") {
    result.setFamilies({"Z003", "URW Chancery L", "Liberation Serif", "serif"});
    result.setItalic(true);
  } else {
    result.setFamilies({"Liberation Sans", "Arimo", "DejaVu Sans", "sans-serif"});
  }
  result.setPointSizeF(std::max(1.0, static_cast<double>(font.size)));
  // Coloured fringes look wrong on coloured felt, and differ between screens.
  result.setStyleStrategy(
      static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  return result;
}

QFont table_font(const Font& font, const painting::TableGeometry& geometry) {
  QFont result = control_font(font);
  result.setBold(true);
  result.setPixelSize(geometry.letter_pixels(font));
  return result;
}

TextPlace text_place(const TextItem& item, const painting::TableGeometry& geometry) {
  const painting::PixelPlace corner = geometry.pixel(item.x, item.y);
  QPoint top_left(corner.x, corner.y);
  for (const Font& line : item.lines_above) {
    top_left.ry() += QFontMetrics(table_font(line, geometry)).height();
  }
  const QFontMetrics metrics(table_font(item.font, geometry));
  const QString text = QString::fromStdString(item.text);
  const QPoint baseline = top_left + QPoint(0, metrics.ascent());
  const QRect line(top_left, QSize(metrics.horizontalAdvance(text), metrics.height()));
  const QRect ink = metrics.boundingRect(text).translated(baseline);
  return {line.united(ink).adjusted(-2, -2, 2, 2), baseline};
}

}  // namespace tombrello::qt
