#pragma once

#include <QAccessibleWidget>
#include <memory>
#include <vector>

#include "qt/table_widget.h"

namespace tombrello::qt {

/// Lets the table be read by assistive technology from now on: an object for the table, and one
/// below it for each of its places. Needs the application object.
void make_tables_accessible();

/// Tells assistive technology what has changed from one list of places to the next.
void announce_places(TableWidget& table, const std::vector<TablePlace>& before, int focus_before);

}  // namespace tombrello::qt
