#pragma once

#include <QProxyStyle>

namespace tombrello::qt {

/// The desktop's own style with an arrow of our own for a menu bar that is too narrow for its
/// menus: a menu bar asks for it at once, and the style would load the library of every image
/// format.
class Style : public QProxyStyle {
 public:
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                     const QWidget* widget) const override;
};

}  // namespace tombrello::qt
