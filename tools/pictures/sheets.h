#pragma once

#include <QImage>

/// All faces, a suit a row, and the backs, each card this wide and high in pixels.
QImage card_sheet(int width, int height);
/// Overlapping hands as the table shows them: `unit` pixels to a logical unit.
QImage fan_sheet(int unit);
/// Strips of melds, upright at the left, lying with a half turn at the right.
QImage strip_sheet(int unit);
/// The whole table in the middle of a hand, as the window paints it.
QImage table_sheet(int width, int height);
QImage opening_sheet(int width, int height);
/// The icon at the sizes of title bars and desktops.
QImage icon(int size);
QImage icon_sheet();
