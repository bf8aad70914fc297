#include "qt/table_widget.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <QtMath>
#include <chrono>
#include <utility>

#include "painting/mark.h"
#include "qt/accessible_table.h"

namespace tombrello::qt {
namespace {

// While the window is being dragged to another size, a paint renders so many milliseconds of
// pictures; those that are left are stretched for the moment and follow in the next paint.
constexpr auto kPatience = std::chrono::milliseconds(30);

std::optional<Key> key_of(const QKeyEvent& event) {
  const auto others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if (event.modifiers() & others) return std::nullopt;
  switch (event.key()) {
    case Qt::Key_Up:
      return Key::up;
    case Qt::Key_Down:
      return Key::down;
    case Qt::Key_Left:
      return Key::left;
    case Qt::Key_Right:
      return Key::right;
    case Qt::Key_Tab:
      return Key::next;
    case Qt::Key_Backtab:
      return Key::previous;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Key::enter;
    case Qt::Key_Space:
      return Key::space;
    case Qt::Key_F1:
      return Key::help;
    case Qt::Key_Escape:
      return Key::escape;
    default:
      return std::nullopt;
  }
}

// These go on while the key is held.
bool moves_mark(Key key) {
  return key != Key::enter && key != Key::space && key != Key::help && key != Key::escape;
}

Button button_of(Qt::MouseButton button) {
  if (button == Qt::LeftButton) return Button::left;
  return button == Qt::RightButton ? Button::right : Button::other;
}

// A pixel more on each side: where the ratio is no whole number, edges fall between pixels.
painting::Region region_in_pixels(const QRegion& region, double ratio) {
  painting::Region pixels;
  for (const QRect& part : region) {
    pixels.add(to_region(
        QRectF(part.x() * ratio, part.y() * ratio, part.width() * ratio, part.height() * ratio)
            .toAlignedRect()
            .adjusted(-1, -1, 1, 1)));
  }
  return pixels;
}

}  // namespace

void use_true_pixels(QPainter& painter, double ratio) {
  const QTransform device = painter.deviceTransform();
  painter.translate((qRound(device.dx()) - device.dx()) / ratio,
                    (qRound(device.dy()) - device.dy()) / ratio);
  painter.scale(1 / ratio, 1 / ratio);
}

TableWidget::TableWidget(painting::PictureSource source, WindowEvents& events)
    : events_(events), pictures_(std::move(source)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
}

void TableWidget::set_follower(std::function<void()> follower) {
  follower_ = std::move(follower);
}

TableGeometry TableWidget::current_geometry() const {
  const double ratio = devicePixelRatioF();
  return {QSize(qCeil(width() * ratio), qCeil(height() * ratio)), ratio,
          static_cast<double>(logicalDpiY())};
}

void TableWidget::follow_screen() {
  const TableGeometry current = current_geometry();
  if (current == geometry_) return;
  if (current.scale() != geometry_.scale()) {
    pictures_.start_round();
    stale_sizes_ = true;
  }
  geometry_ = current;
  if (follower_) follower_();
  update();
}

// A pixel more on each side, as above.
QRegion TableWidget::to_widget(const painting::Region& pixels) const {
  QRegion region;
  for (const painting::PixelRect& part : pixels.rects()) {
    region += geometry_.widget_rect(part).adjusted(-1, -1, 1, 1);
  }
  return region & rect();
}

QRegion TableWidget::changed_region() {
  follow_screen();
  const Surface::Changes changes = surface_.take_changes();
  if (changes.everything) return rect();
  return to_widget(painting::changed_pixels(changes, geometry_, letters_, geometry_.table()));
}

void TableWidget::show_changes() {
  const QRegion region = changed_region();
  if (!region.isEmpty()) update(region);
}

void TableWidget::show_changes_now() {
  const QRegion region = changed_region();
  if (!region.isEmpty()) repaint(region);
}

QRegion TableWidget::mark_region() const {
  painting::Region sides;
  if (!mark_) return {};
  for (const auto& side : painting::mark_pixels(*mark_, geometry_)) sides.add(side);
  return to_widget(sides);
}

// Only the outline is painted anew, where it was and where it is.
void TableWidget::set_mark(const std::optional<Area>& area) {
  QRegion changed = mark_region();
  mark_ = area;
  changed += mark_region();
  if (!changed.isEmpty()) update(changed);
}

void TableWidget::set_places(const std::vector<TablePlace>& places, int focus) {
  if (places == places_ && focus == focused_place_) return;
  const std::vector<TablePlace> before = std::exchange(places_, places);
  const int focus_before = std::exchange(focused_place_, focus);
  announce_places(*this, before, focus_before);
}

void TableWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  use_true_pixels(painter, geometry_.ratio());
  QtCanvas canvas(painter);
  const painting::Region exposed = region_in_pixels(event->region(), geometry_.ratio());
  const painting::Region drafts =
      painting::paint_surface(canvas, letters_, surface_, geometry_, exposed, pictures_,
                              std::chrono::steady_clock::now() + kPatience);
  if (!drafts.empty()) update(to_widget(drafts));
  if (mark_) painting::paint_mark(canvas, *mark_, geometry_);
  if (stale_sizes_ && drafts.empty()) {
    pictures_.drop_unused();
    stale_sizes_ = false;
  }
  if (first_paint_) QTimer::singleShot(0, this, std::exchange(first_paint_, nullptr));
}

void TableWidget::resizeEvent(QResizeEvent*) {
  follow_screen();
}

void TableWidget::mousePressEvent(QMouseEvent* event) {
  const Point place = geometry_.logical(event->position());
  events_.pressed(button_of(event->button()), place.x, place.y);
}

// Qt sends it in the place of the second press.
void TableWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
}

void TableWidget::mouseMoveEvent(QMouseEvent* event) {
  const Point place = geometry_.logical(event->position());
  events_.moved(place.x, place.y);
}

// A key that a field or the opening picture has no use for comes here too: of those only help and
// escape are the table's.
void TableWidget::keyPressEvent(QKeyEvent* event) {
  const std::optional<Key> key = key_of(*event);
  const bool anywhere = key == Key::help || key == Key::escape;
  if (!key || (!anywhere && !hasFocus())) return event->ignore();
  if (!event->isAutoRepeat() || moves_mark(*key)) events_.key_pressed(*key);
}

void TableWidget::keyReleaseEvent(QKeyEvent* event) {
  const std::optional<Key> key = key_of(*event);
  if (!key || event->isAutoRepeat()) return event->ignore();
  events_.key_released(*key);
}

// What is held down when the keyboard goes elsewhere is let go there.
void TableWidget::focusOutEvent(QFocusEvent* event) {
  events_.key_released(Key::space);
  QWidget::focusOutEvent(event);
}

}  // namespace tombrello::qt
