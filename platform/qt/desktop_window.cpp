#include "qt/desktop_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include "qt/accessible_table.h"

namespace tombrello::qt {
namespace {

constexpr QSize kRestored(1000, 780);

// Wide enough for its own title, and without buttons that it has no use for.
constexpr int kBoxWidth = 220;
constexpr auto kBoxFrame = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

Qt::CursorShape cursor_of(PointerShape shape) {
  switch (shape) {
    case PointerShape::up_arrow:
      return Qt::UpArrowCursor;
    case PointerShape::hourglass:
      return Qt::WaitCursor;
    case PointerShape::arrow:
      break;
  }
  return Qt::ArrowCursor;
}

}  // namespace

void DesktopWindow::Frame::closeEvent(QCloseEvent* event) {
  closing_ = true;
  event->accept();
}

// The window manager tells the restored size after the state, and the borders' with it.
void DesktopWindow::Frame::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  const bool restored = event->type() == QEvent::WindowStateChange && windowState() == 0;
  if (restored) QTimer::singleShot(0, this, [this] { stay_on_screen(); });
}

void DesktopWindow::Frame::stay_on_screen() {
  const QRect free = screen()->availableGeometry();
  const QSize borders = frameGeometry().size() - size();
  const QSize fitting = size().boundedTo(free.size() - borders);
  if (fitting == size()) return;
  resize(fitting);
  move(free.topLeft());
}

DesktopWindow::DesktopWindow(painting::PictureSource pictures)
    : table_(new TableWidget(std::move(pictures), relay_)), line_(new ChronicleLine(nullptr)) {
  table_->set_follower([this] { overlay_.follow_table(); });
  make_tables_accessible();
  auto* whole = new QWidget(&frame_);
  auto* rows = new QVBoxLayout(whole);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(table_, 1);
  rows->addWidget(line_);
  frame_.menuBar()->setContextMenuPolicy(Qt::PreventContextMenu);
  frame_.setContextMenuPolicy(Qt::PreventContextMenu);
  frame_.setCentralWidget(whole);
  frame_.setMinimumSize(400, 300);
  // A tenth is left for borders, which nobody knows before the window stands.
  frame_.resize(kRestored.boundedTo(frame_.screen()->availableSize() * 9 / 10));
  // Leaving is up to the chain of the game: the window only says that it is closing.
  QApplication::setQuitOnLastWindowClosed(false);
}

void DesktopWindow::set_caption(const std::string& text) {
  frame_.setWindowTitle(QString::fromStdString(text));
}

void DesktopWindow::show_maximised() {
  frame_.showMaximized();
}

void DesktopWindow::serve_events() {
  table_->show_changes();
  // Without a window nothing would come to end the sleep.
  QCoreApplication::processEvents(closing_ ? QEventLoop::AllEvents
                                           : QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void DesktopWindow::show_now(int milliseconds) {
  if (closing_) return;
  const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
  table_->show_changes_now();
  std::this_thread::sleep_until(until);
}

void DesktopWindow::close() {
  closing_ = true;
  frame_.close();
}

void DesktopWindow::stop() {
  closing_ = true;
  if (box_ != nullptr) box_->reject();
  frame_.close();
}

void DesktopWindow::set_chronicle(const std::string& now, const std::string& then) {
  line_->tell(now, then);
}

bool DesktopWindow::wants_places() const {
  return QAccessible::isActive();
}

void DesktopWindow::set_pointer(PointerShape shape) {
  pointer_ = shape;
  table_->setCursor(cursor_of(shape));
}

Answer DesktopWindow::message_box(const std::string& text, Buttons buttons) {
  const Answer otherwise = buttons == Buttons::ok ? Answer::ok : Answer::no;
  if (closing_) return otherwise;
  table_->show_changes();
  QMessageBox box(QMessageBox::NoIcon, "", "", QMessageBox::NoButton, &frame_, kBoxFrame);
  box.setWindowTitle("Tombrello");
  box.setTextFormat(Qt::PlainText);
  box.setText(QString::fromStdString(text));
  QPushButton* yes = nullptr;
  if (buttons == Buttons::yes_no) {
    yes = box.addButton(QString::fromUtf8("Sì"), QMessageBox::YesRole);
    box.setEscapeButton(box.addButton("No", QMessageBox::NoRole));
    box.setDefaultButton(yes);
  } else {
    box.addButton("OK", QMessageBox::AcceptRole);
  }
  if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
    grid->setColumnMinimumWidth(grid->columnCount() - 1, kBoxWidth);
  }
  box_ = &box;
  box.exec();
  box_ = nullptr;
  const bool agreed = !closing_ && yes != nullptr && box.clickedButton() == yes;
  return agreed ? Answer::yes : otherwise;
}

void DesktopWindow::add_entry(EntryId entry, EntryId parent, const std::string& caption) {
  menus_.add(entry, parent, caption);
}

void DesktopWindow::add_panel(ControlId panel, const std::string& text, const Font& font,
                              long text_colour, long back_colour) {
  overlay_.add(
      panel, std::make_unique<Panel>(panel, text, font, text_colour, back_colour, *table_, relay_));
}

void DesktopWindow::add_field(ControlId field, FieldRule rule, const Font& font) {
  overlay_.add(field, std::make_unique<Field>(field, rule, font, *table_, relay_));
}

void DesktopWindow::add_shape(ControlId shape, Colour colour) {
  overlay_.add(shape, std::make_unique<ShapeControl>(colour, *table_));
}

void DesktopWindow::add_picture(ControlId control, Picture picture) {
  overlay_.add(control, std::make_unique<PictureControl>(control, picture, *table_, relay_));
}

}  // namespace tombrello::qt
