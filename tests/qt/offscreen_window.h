#pragma once

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <map>

#include "headless/headless_window.h"
#include "qt/desktop_window.h"
#include "tests/qt/sample_pictures.h"

namespace tombrello::qt {

/// The desktop's own window where nobody sees it, with the acts of a `HeadlessWindow`: presses
/// and keys take their way through the window system, the widgets and the event relay.
class OffscreenWindow : public DesktopWindow, public ScriptedPlayer {
 public:
  explicit OffscreenWindow(HeadlessTimer& timer) : DesktopWindow(sample_picture), timer_(timer) {}

  void serve_events() override {
    pass(*this, timer_, &events());
    QTimer::singleShot(0, [] {});  // so that no pass sleeps
    if (!closing()) DesktopWindow::serve_events();
  }
  Answer message_box(const std::string& text, Buttons buttons) override {
    if (!closing()) {
      boxes.push_back(text);
      QTimer::singleShot(0, &frame(), [this, buttons] { answer_box(buttons); });
    }
    return DesktopWindow::message_box(text, buttons);
  }

  void press(float x, float y, Button button = Button::left) {
    mouse(x, y, [&](QWindow* window, QPoint at) {
      QTest::mouseClick(window, button == Button::left ? Qt::LeftButton : Qt::RightButton, {}, at);
    });
  }
  void move(float x, float y) {
    mouse(x, y, [](QWindow* window, QPoint at) { QTest::mouseMove(window, at); });
  }
  bool choose(EntryId entry) {
    if (!enabled(entry) || in_box()) return false;
    actions_.at(entry)->trigger();
    return true;
  }
  bool click(ControlId control) {
    if (!visible(control) || in_box()) return false;
    const QPoint at = widgets_.at(control)->geometry().center();
    QTest::mouseClick(frame().windowHandle(), Qt::LeftButton, {}, in_frame(at));
    return true;
  }
  bool press_key(ControlId control) {
    if (!visible(control) || !widgets_.at(control)->hasFocus()) return false;
    QTest::keyClick(frame().windowHandle(), Qt::Key_Shift);  // means nothing
    EXPECT_TRUE(visible(control));
    QTest::keyClick(frame().windowHandle(), Qt::Key_A);
    return true;
  }
  /// In place of what stands in the field; the first one has the keyboard without a click.
  bool type(ControlId field, const std::string& text) {
    if (!visible(field) || in_box()) return false;
    if (!widgets_.at(field)->hasFocus()) click(field);
    QTest::keyClick(frame().windowHandle(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(frame().windowHandle(), Qt::Key_Delete);
    QApplication::clipboard()->setText(QString::fromStdString(text));
    QTest::keyClick(frame().windowHandle(), Qt::Key_V, Qt::ControlModifier);
    return true;
  }
  bool press_enter(ControlId field) {
    if (!visible(field) || in_box()) return false;
    widgets_.at(field)->setFocus();
    QTest::keyClick(frame().windowHandle(), Qt::Key_Return);
    return true;
  }

  bool shown() { return frame().isVisible(); }
  std::string caption() { return frame().windowTitle().toStdString(); }
  const Area& area(ControlId control) const { return areas_.at(control); }
  std::string text(ControlId field) {
    return qobject_cast<QLineEdit*>(widgets_.at(field))->text().toStdString();
  }
  std::string name(ControlId field) { return widgets_.at(field)->accessibleName().toStdString(); }
  /// The visible control that lies over all others, 0 for none.
  ControlId front() {
    const auto& children = table().children();
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
      for (const auto& [control, widget] : widgets_) {
        if (widget == *child && visible(control)) return control;
      }
    }
    return 0;
  }

  std::string told_now;
  std::string told_then;
  std::optional<Area> mark;

  void set_chronicle(const std::string& now, const std::string& then) override {
    DesktopWindow::set_chronicle(told_now = now, told_then = then);
  }
  void set_mark(const std::optional<Area>& area) override { DesktopWindow::set_mark(mark = area); }
  void add_entry(EntryId entry, EntryId parent, const std::string& caption) override {
    DesktopWindow::add_entry(entry, parent, caption);
    actions_[entry] = frame().menuBar()->findChildren<QAction*>(Qt::FindDirectChildrenOnly).last();
  }
  void add_panel(ControlId panel, const std::string& text, const Font& font, long text_colour,
                 long back_colour) override {
    DesktopWindow::add_panel(panel, text, font, text_colour, back_colour);
    note(panel);
  }
  void add_field(ControlId field, FieldRule rule, const Font& font) override {
    DesktopWindow::add_field(field, rule, font);
    note(field);
  }
  void add_shape(ControlId shape, Colour colour) override {
    DesktopWindow::add_shape(shape, colour);
    note(shape);
  }
  void add_picture(ControlId control, Picture picture) override {
    DesktopWindow::add_picture(control, picture);
    note(control);
  }
  void place(ControlId control, const Area& area) override {
    DesktopWindow::place(control, area);
    areas_[control] = area;
  }

 private:
  static bool in_box() { return QApplication::activeModalWidget() != nullptr; }
  void note(ControlId control) {
    widgets_[control] = qobject_cast<QWidget*>(table().children().last());
  }
  QPoint in_frame(QPoint at) { return table().mapTo(&frame(), at); }
  template <class Act>
  void mouse(float x, float y, Act act) {
    if (!in_box())
      act(frame().windowHandle(), in_frame(table().widget_area({x, y, x, y}).topLeft()));
  }
  void answer_box(Buttons buttons) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    if (on_box) on_box();
    const bool yes = buttons == Buttons::ok || next_answer() == Answer::yes;
    if (!closing()) box->buttons().at(yes ? 0 : 1)->click();
  }

  HeadlessTimer& timer_;
  std::map<EntryId, QAction*> actions_;
  std::map<ControlId, QWidget*> widgets_;
  std::map<ControlId, Area> areas_;
};

}  // namespace tombrello::qt
