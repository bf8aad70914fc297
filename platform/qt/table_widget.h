#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "qt/canvas.h"
#include "qt/geometry.h"
#include "seam/surface.h"
#include "seam/window.h"

namespace tombrello::qt {

/// Makes the painter count in the screen's own pixels, whole ones, from the widget's corner.
void use_true_pixels(QPainter& painter, double ratio);

/// Shows a surface, and reports presses and moves on it.
class TableWidget : public QWidget {
 public:
  TableWidget(painting::PictureSource source, WindowEvents& events);

  Surface& surface() { return surface_; }
  const painting::PictureCache& pictures() const { return pictures_; }
  const TableGeometry& geometry_in_pixels() const { return geometry_; }
  /// Called whenever the table has moved or changed its size.
  void set_follower(std::function<void()> follower);
  /// Called once, soon after the table has first been painted.
  void after_first_paint(std::function<void()> action) { first_paint_ = std::move(action); }

  /// Looks whether the window's size or its screen has changed.
  void follow_screen();
  /// Has painted what changed on the surface: soon, or at once without serving events.
  void show_changes();
  void show_changes_now();

  void set_mark(const std::optional<Area>& area);
  /// The places of the table as they are read out, and the marked one, -1 for none.
  void set_places(const std::vector<TablePlace>& places, int focus);
  const std::vector<TablePlace>& places() const { return places_; }
  int focused_place() const { return focused_place_; }
  void press_place(int place, Button button) { events_.place_pressed(place, button); }
  QRect widget_area(const Area& area) const {
    return geometry_.widget_rect(geometry_.pixels(area));
  }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool) override { return false; }  // Tab moves the mark

 private:
  TableGeometry current_geometry() const;
  QRegion to_widget(const painting::Region& pixels) const;
  QRegion changed_region();
  QRegion mark_region() const;

  WindowEvents& events_;
  Surface surface_;
  painting::PictureCache pictures_;
  QtLetters letters_;
  TableGeometry geometry_{QSize(800, 600), 1, 96};
  std::function<void()> follower_;
  std::function<void()> first_paint_;
  bool stale_sizes_ = false;
  std::optional<Area> mark_;
  std::vector<TablePlace> places_;
  int focused_place_ = -1;
};

}  // namespace tombrello::qt
