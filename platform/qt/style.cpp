#include "qt/style.h"

#include <QGuiApplication>
#include <QPalette>

#include "qt/icon.h"

namespace tombrello::qt {
namespace {

// Two heads, one behind the other.
Drawing arrow(const QColor& colour) {
  Shape heads;
  for (const float x : {2.0F, 5.0F}) {
    heads.path.move({x, 2});
    heads.path.line({x + 2, 4});
    heads.path.line({x, 6});
  }
  heads.filled = false;
  heads.stroke_width = 1;
  const auto channel = [](int value) { return static_cast<std::uint8_t>(value); };
  heads.stroke = {channel(colour.red()), channel(colour.green()), channel(colour.blue())};
  return {8, 8, {heads}};
}

}  // namespace

QIcon Style::standardIcon(StandardPixmap which, const QStyleOption* option,
                          const QWidget* widget) const {
  if (which != SP_ToolBarHorizontalExtensionButton) {
    return QProxyStyle::standardIcon(which, option, widget);
  }
  const QColor colour = QGuiApplication::palette().color(QPalette::ButtonText);
  return drawn_icon([colour](int) { return arrow(colour); });
}

}  // namespace tombrello::qt
