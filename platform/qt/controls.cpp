#include "qt/controls.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>
#include <cmath>
#include <memory>
#include <new>

#include "qt/accessible_notice.h"
#include "qt/canvas.h"
#include "qt/text_style.h"
#include "raster/rasteriser.h"

namespace tombrello::qt {
namespace {

constexpr int kPanelMargin = 8;

// Far more than any name, and little enough to be laid out at once whatever was pasted.
constexpr int kMostTyped = 512;

QColor colour_or(long colour, const QColor& otherwise) {
  return colour < 0 ? otherwise : to_qcolor(static_cast<Colour>(colour));
}

// The first line, and each line that has an empty one above it and a text below it.
bool is_heading(const QTextBlock& line) {
  if (!line.previous().isValid()) return true;
  return line.previous().text().isEmpty() && !line.next().text().isEmpty();
}

void set_headings_off(QTextDocument& document) {
  QTextCharFormat bold;
  bold.setFontWeight(QFont::Bold);
  for (QTextBlock line = document.begin(); line.isValid(); line = line.next()) {
    if (!is_heading(line)) continue;
    QTextCursor cursor(line);
    cursor.select(QTextCursor::BlockUnderCursor);
    cursor.mergeCharFormat(bold);
  }
}

QAbstractSlider::SliderAction scrolling_by(int key) {
  switch (key) {
    case Qt::Key_Up:
      return QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_Down:
      return QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_PageUp:
      return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown:
      return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home:
      return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
      return QAbstractSlider::SliderToMaximum;
    default:
      return QAbstractSlider::SliderNoAction;
  }
}

}  // namespace

Panel::Panel(ControlId id, const std::string& text, const Font& font, long text_colour,
             long back_colour, TableWidget& table, WindowEvents& events)
    : QTextEdit(&table), Control(table), id_(id), events_(events) {
  make_notice(*this);
  setReadOnly(true);
  setTextInteractionFlags(Qt::NoTextInteraction);
  setContextMenuPolicy(Qt::NoContextMenu);
  setFocusPolicy(Qt::NoFocus);
  setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Plain));
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  QPalette colours = palette();
  colours.setColor(QPalette::Base, colour_or(back_colour, colours.color(QPalette::Window)));
  colours.setColor(QPalette::Text, colour_or(text_colour, colours.color(QPalette::WindowText)));
  setPalette(colours);
  setFont(control_font(font));
  document()->setDocumentMargin(kPanelMargin);
  setPlainText(QString::fromStdString(text));
  setAccessibleName(toPlainText());
  set_headings_off(*document());
  setCursor(Qt::ArrowCursor);
  viewport()->setCursor(Qt::ArrowCursor);
  table.installEventFilter(this);
}

void Panel::fit(const Area& area) {
  const TableGeometry& geometry = table_.geometry_in_pixels();
  QRect place = table_.widget_area(area);
  const int lowest = geometry.widget_rect(geometry.table()).bottom();
  // On a copy: the one that shows stays as wide as its scroll bar leaves it.
  const std::unique_ptr<QTextDocument> measured(document()->clone());
  measured->setTextWidth(std::max(1, place.width() - 2 * frameWidth()));
  const int needed = static_cast<int>(std::ceil(measured->size().height())) + 2 * frameWidth();
  if (needed > place.height()) place.setBottom(std::min(lowest, place.top() + needed - 1));
  const bool all = place.height() >= needed;
  setVerticalScrollBarPolicy(all ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
  setGeometry(place);
}

void Panel::mousePressEvent(QMouseEvent* event) {
  event->accept();
}
void Panel::mouseDoubleClickEvent(QMouseEvent* event) {
  event->accept();
}
void Panel::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
}
void Panel::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  if (rect().contains(event->position().toPoint())) events_.control_clicked(id_);
}

// It takes no keyboard: while it shows, those keys of the table that scroll are its.
bool Panel::eventFilter(QObject* table, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !isVisible())
    return QTextEdit::eventFilter(table, event);
  const auto action = scrolling_by(static_cast<QKeyEvent*>(event)->key());
  if (action == QAbstractSlider::SliderNoAction) return false;
  verticalScrollBar()->triggerAction(action);
  return true;
}

Field::Field(ControlId id, FieldRule rule, const Font& font, TableWidget& table,
             WindowEvents& events)
    : QLineEdit(&table), Control(table), id_(id), rule_(rule), font_(font), events_(events) {
  setFrame(false);
  setMaxLength(kMostTyped);
  setContextMenuPolicy(Qt::NoContextMenu);
  connect(this, &QLineEdit::textEdited, this, [this](const QString& raw) { edited(raw); });
  connect(this, &QLineEdit::returnPressed, this, [this] { events_.field_confirmed(id_); });
}

// Letters are measured in points, but never higher than the field.
void Field::fit(const Area& area) {
  const TableGeometry& geometry = table_.geometry_in_pixels();
  const QRect place = table_.widget_area(area);
  QFont letters = control_font(font_);
  int size = std::max(1, qRound(geometry.pixels_per_point() * font_.size / geometry.ratio()));
  do {
    letters.setPixelSize(size);
  } while (QFontMetrics(letters).height() > place.height() - 2 && --size > 4);
  setFont(letters);
  setGeometry(place);
}

void Field::bring_to_front() {
  Control::bring_to_front();
  take_keyboard();
}

void Field::set_name(const std::string& name) {
  setAccessibleName(QString::fromStdString(name));
}

void Field::set_text(const std::string& text) {
  setText(allowed(QString::fromStdString(text), 0));
}

QString Field::allowed(const QString& raw, qsizetype characters_already) const {
  return QString::fromStdString(
      rule_(raw.left(kMostTyped).toStdString(), static_cast<int>(characters_already)));
}

// What is typed into a full field is what doesn't fit, wherever it was typed.
void Field::edited(const QString& raw) {
  const QString behind = allowed(raw.mid(cursorPosition()), 0);
  const QString before = allowed(raw.left(cursorPosition()), behind.toUcs4().size());
  const QString text = before + behind;
  if (text != raw) {
    setText(text);
    setCursorPosition(static_cast<int>(before.size()));
  }
  events_.field_changed(id_, text.toStdString());
}

void Field::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  painter.setClipRegion(QRegion(rect()) - QRegion(rect().adjusted(1, 1, -1, -1)));
  painter.fillRect(rect(), palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
}

ShapeControl::ShapeControl(Colour colour, TableWidget& table)
    : QWidget(&table), Control(table), colour_(to_qcolor(colour)) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

// A raised bar with a tick: without a word it says that a press on it agrees.
void ShapeControl::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF bar = rect();
  QLinearGradient light(bar.topLeft(), bar.bottomLeft());
  light.setColorAt(0, colour_.lighter(170));
  light.setColorAt(0.45, colour_);
  light.setColorAt(1, colour_.darker(130));
  painter.setBrush(light);
  painter.setPen(colour_.darker(220));
  painter.drawRoundedRect(bar.adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);

  const double unit = bar.height() / 10;
  const QPointF middle = bar.center();
  QPen pen(Qt::white, 1.6 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(
      QPolygonF({middle + QPointF(-3.2, 0.2) * unit, middle + QPointF(-0.9, 2.5) * unit,
                 middle + QPointF(3.6, -2.5) * unit}));
}

void ShapeControl::fit(const Area& area) {
  setGeometry(table_.widget_area(area));
}

PictureControl::PictureControl(ControlId id, Picture picture, TableWidget& table,
                               WindowEvents& events)
    : QWidget(&table), Control(table), id_(id), picture_(picture), events_(events) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::ArrowCursor);
  table.installEventFilter(this);
}

void PictureControl::fit(const Area& area) {
  const TableGeometry& geometry = table_.geometry_in_pixels();
  pixels_ = geometry.picture_pixels(area);
  ratio_ = geometry.ratio();
  setGeometry(geometry.widget_rect(pixels_));
  update();
}

void PictureControl::paintEvent(QPaintEvent*) {
  if (pixels_.empty()) return;
  QPainter painter(this);
  painter.translate(-pos());
  use_true_pixels(painter, ratio_);
  prepare();
  if (coming_.valid()) bitmap_ = come();
  painter.drawImage(to_qrect(pixels_).topLeft(), view_of(bitmap_));
}

void PictureControl::prepare() {
  const QSize size(pixels_.width(), pixels_.height());
  if (size == asked_for_) return;
  asked_for_ = size;
  coming_ = std::async([drawing = table_.pictures().vectors(picture_), size] {
    return raster::rasterise(drawing, size.width(), size.height());
  });
}

// Without memory for it the table shows in its place, until another size is asked for.
raster::Bitmap PictureControl::come() {
  try {
    return coming_.get();
  } catch (const std::bad_alloc&) {
    return {};
  }
}

// What lies under it is painted first: a window's worth of pixels, and at the start new memory for
// each. Other threads rasterise meanwhile.
bool PictureControl::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Paint && isVisible() && !pixels_.empty()) prepare();
  return false;
}

void PictureControl::mousePressEvent(QMouseEvent* event) {
  event->accept();
}
void PictureControl::mouseReleaseEvent(QMouseEvent* event) {
  if (rect().contains(event->position().toPoint())) events_.control_clicked(id_);
}

// Shift or a function key alone is no character, and means something else to the window.
void PictureControl::keyPressEvent(QKeyEvent* event) {
  if (event->text().isEmpty()) {
    event->ignore();
  } else {
    events_.control_key_pressed(id_);
  }
}

void PictureControl::showEvent(QShowEvent*) {
  setFocus();
}

void PictureControl::hideEvent(QHideEvent*) {
  asked_for_ = {};
  coming_ = {};
  bitmap_ = {};
}

}  // namespace tombrello::qt
