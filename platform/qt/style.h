#pragma once

#include <QProxyStyle>

namespace tombrello::qt {

/// The desktop's own style without the arrow of a menu bar that is too narrow for its menus. A menu
/// bar asks for it at once, and the style would load the library of every image format; the window
/// is never narrower than its menus.
class Style : public QProxyStyle {
 public:
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                     const QWidget* widget) const override {
    if (which == SP_ToolBarHorizontalExtensionButton) return {};
    return QProxyStyle::standardIcon(which, option, widget);
  }
};

}  // namespace tombrello::qt
