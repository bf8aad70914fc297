#pragma once

#include <QWidget>

namespace tombrello::qt {

/// Makes a widget one that assistive technology reads out whenever it is shown, or told to be. It
/// reads the widget's accessible name. Called before anything of the widget is set.
void make_notice(QWidget& widget);

}  // namespace tombrello::qt
