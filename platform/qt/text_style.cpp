#include "qt/text_style.h"

#include <QFontMetrics>
#include <QStringList>
#include <algorithm>

namespace tombrello::qt {

QFont control_font(const Font& font) {
  // Made once: names are printed anew with every card.
  static const QStringList script{"Z003", "URW Chancery L", "Liberation Serif", "serif"};
  static const QStringList plain{"Liberation Sans", "Arimo", "DejaVu Sans", "sans-serif"};
  QFont result;
  const bool is_script = font.name == "Brush Script MT";
  result.setFamilies(is_script ? script : plain);
  result.setItalic(is_script);
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

QPoint text_baseline(const TextItem& item, const QFont& font,
                     const painting::TableGeometry& geometry) {
  const painting::PixelPlace corner = geometry.pixel(item.x, item.y);
  QPoint start(corner.x, corner.y);
  for (const Font& line : item.lines_above) {
    start.ry() += QFontMetrics(table_font(line, geometry)).height();
  }
  start.ry() += QFontMetrics(font).ascent();
  return start;
}

QRect text_pixels(const TextItem& item, const painting::TableGeometry& geometry) {
  const QFont font = table_font(item.font, geometry);
  const QRect ink = QFontMetrics(font).boundingRect(QString::fromStdString(item.text));
  return ink.translated(text_baseline(item, font, geometry)).adjusted(-2, -2, 2, 2);
}

}  // namespace tombrello::qt
