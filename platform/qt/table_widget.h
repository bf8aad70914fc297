#pragma once

#include <QWidget>
#include <functional>

#include "qt/geometry.h"
#include "qt/picture_cache.h"
#include "seam/surface.h"
#include "seam/window.h"

namespace tombrello::qt {

/// Makes the painter count in the screen's own pixels, whole ones, from the widget's corner.
void use_true_pixels(QPainter& painter, double ratio);

/// Shows a surface, and reports presses and moves on it.
class TableWidget : public QWidget {
 public:
  TableWidget(PictureSource source, WindowEvents& events);

  Surface& surface() { return surface_; }
  PictureCache& pictures() { return pictures_; }
  const TableGeometry& geometry_in_pixels() const { return geometry_; }
  /// Called whenever the table has moved or changed its size.
  void set_follower(std::function<void(const TableGeometry&)> follower);
  /// Called once, soon after the table has first been painted.
  void after_first_paint(std::function<void()> action) { first_paint_ = std::move(action); }

  /// Looks whether the window's size or its screen has changed.
  void follow_screen();
  /// Has painted what changed on the surface: soon, or at once without serving events.
  void show_changes();
  void show_changes_now();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  TableGeometry current_geometry() const;
  QRegion changed_region();

  WindowEvents& events_;
  Surface surface_;
  PictureCache pictures_;
  TableGeometry geometry_{QSize(800, 600), 1, 96};
  std::function<void(const TableGeometry&)> follower_;
  std::function<void()> first_paint_;
  bool stale_sizes_ = false;
};

}  // namespace tombrello::qt
