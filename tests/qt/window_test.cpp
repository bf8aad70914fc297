#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QBackingStore>
#include <QClipboard>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QtMath>
#include <array>
#include <random>

#include "compare.h"
#include "qt/canvas.h"
#include "qt/desktop_timer.h"
#include "qt/desktop_window.h"
#include "sample_pictures.h"

namespace tombrello::qt {
namespace {

struct Listener : WindowEvents {
  void pressed(Button button, float x, float y) override {
    presses.push_back({static_cast<float>(button), x, y});
  }
  void moved(float, float) override { ++moves; }
  void entry_chosen(EntryId entry) override { chosen.push_back(entry); }
  void control_clicked(ControlId control) override { clicked.push_back(control); }
  void control_key_pressed(ControlId control) override { keyed.push_back(control); }
  void field_changed(ControlId, const std::string& text) override { field = text; }
  void field_confirmed(ControlId) override { ++confirmed; }
  void key_pressed(Key key) override { keys.push_back(key); }
  void key_released(Key) override {}
  void place_pressed(int, Button) override {}
  void timer_ticked() override { ++ticks; }

  std::vector<std::array<float, 3>> presses;
  std::vector<int> chosen, clicked, keyed;
  std::string field;
  std::vector<Key> keys;
  int moves = 0, confirmed = 0, ticks = 0;
};

class WindowTest : public testing::Test {
 protected:
  WindowTest() { window_.set_events(&events_); }

  void show(QSize size) {
    window_.frame().resize(size);
    window_.frame().show();
    settle();
  }
  void settle() {
    for (int pass = 0; pass < 8; ++pass) {
      QTimer::singleShot(0, [] {});  // so that no pass sleeps
      window_.serve_events();
    }
  }
  void mouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButton button) {
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, button, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }
  void key(QWidget& widget, int code, const QString& text, Qt::KeyboardModifiers with = {}) {
    QKeyEvent event(QEvent::KeyPress, code, with, text);
    QApplication::sendEvent(&widget, &event);
  }
  /// What stands in the window where the table is, as it was painted bit by bit.
  QImage on_screen() {
    QWidget& table = window_.table();
    const double ratio = table.devicePixelRatioF();
    const auto& all = dynamic_cast<QImage&>(*window_.frame().backingStore()->paintDevice());
    const QPointF corner = QPointF(table.mapTo(&window_.frame(), QPoint(0, 0))) * ratio;
    QImage part = all.copy(QRect(QPoint(qRound(corner.x()), qRound(corner.y())), all.size()));
    part.setDevicePixelRatio(1);
    return part.convertToFormat(QImage::Format_RGB32);
  }
  QImage wanted() {
    QImage image(QSize(4000, 3000), QImage::Format_RGB32);
    painting::PictureCache pictures(sample_picture);
    QPainter painter(&image);
    QtCanvas canvas(painter);
    paint_surface(canvas, QtLetters(), window_.surface(), window_.table().geometry_in_pixels(),
                  to_region(image.rect()), pictures);
    return image;
  }
  template <class Widget>
  Widget& only() {
    return *dynamic_cast<Widget*>(window_.table().children().front());
  }

  Listener events_;
  DesktopWindow window_{sample_picture, [](int) { return sample_picture({}); }};
};

TEST_F(WindowTest, ShowsTheSurfaceSharpAfterAnyResize) {
  Surface& surface = window_.surface();
  surface.set_background(kFelt);
  window_.frame().menuBar()->setFixedHeight(21);  // the table begins between two pixels
  show(QSize(803, 631));
  std::mt19937 chance(3);
  for (const QSize size : {QSize(640, 501), QSize(1101, 777), QSize(400, 300), QSize(803, 631)}) {
    window_.frame().resize(size);
    settle();
    for (int k = 0; k < 20; ++k) {
      surface.paint({PictureSet::carta, 1 + k}, static_cast<float>(chance() % 700),
                    static_cast<float>(chance() % 500), 60, 94.25F);
      settle();
    }
    surface.set_text_position(200.5F, static_cast<float>(chance() % 500));
    surface.print("Gioca SUD");
    settle();
    const QImage shown = on_screen();
    const QRect table =
        to_qrect(window_.table().geometry_in_pixels().table()).adjusted(0, 0, -1, -1);
    EXPECT_TRUE(same_pixels(shown.copy(table), wanted().copy(table))) << size.width();
  }
}

TEST_F(WindowTest, ReportsPressesWhereverTheyFall) {
  show(QSize(1000, 600));
  TableWidget& table = window_.table();
  const QPointF middle(table.width() / 2.0, table.height() / 2.0);
  mouse(table, QEvent::MouseButtonPress, middle, Qt::LeftButton);
  mouse(table, QEvent::MouseButtonDblClick, middle, Qt::LeftButton);
  mouse(table, QEvent::MouseButtonPress, {0, 0}, Qt::RightButton);
  mouse(table, QEvent::MouseButtonPress, {0, 0}, Qt::BackButton);
  ASSERT_EQ(events_.presses.size(), 4U);
  for (const int press : {0, 1}) {
    EXPECT_EQ(events_.presses[press][0], 1);
    EXPECT_NEAR(events_.presses[press][1], 400, 1);
    EXPECT_NEAR(events_.presses[press][2], 300, 1);
  }
  EXPECT_EQ(events_.presses[2], (std::array<float, 3>{2, 0, 0}));
  EXPECT_EQ(events_.presses[3], (std::array<float, 3>{4, 0, 0}));
  mouse(table, QEvent::MouseMove, {3, 3}, Qt::NoButton);
  EXPECT_EQ(events_.moves, 1);
}

TEST_F(WindowTest, OnlyTheProgramMovesChecks) {
  window_.add_entry(1, kMenuBar, "&Opzioni");
  window_.add_entry(2, 1, "Bassa");
  window_.add_entry(3, kMenuBar, "&Regole");
  window_.set_checked(2, true);
  QList<QAction*> bar = window_.frame().menuBar()->actions();
  ASSERT_EQ(bar.size(), 2);
  QAction* low = bar[0]->menu<QMenu*>()->actions().front();
  low->trigger();
  bar[1]->trigger();
  EXPECT_TRUE(low->isChecked());
  EXPECT_TRUE(window_.checked(2));
  window_.set_enabled(3, false);
  bar[1]->trigger();
  EXPECT_EQ(events_.chosen, (std::vector<int>{2, 3}));
}

TEST_F(WindowTest, RestoredItFitsTheScreenWhateverItsSizeWas) {
  QMainWindow& frame = window_.frame();
  const QSize free = frame.screen()->availableSize();
  window_.show_maximised();
  for (int larger : {0, 300}) {
    frame.resize(frame.size() + QSize(larger, larger));
    frame.showNormal();
    settle();
    EXPECT_EQ(frame.frameGeometry().size(), frame.frameGeometry().size().boundedTo(free)) << larger;
    frame.setWindowState(Qt::WindowMaximized);
  }
}

TEST_F(WindowTest, AFieldTakesWhatItsRuleTakes) {
  const FieldRule seven_but_commas = [](const std::string& text, int already) {
    std::string taken;
    for (const char c : text) {
      if (c != ',' && already++ < 7) taken += c;
    }
    return taken;
  };
  window_.add_field(5, seven_but_commas, {"MS Sans Serif", 7.8F});
  window_.place(5, {75, 32, 135, 46.8F});
  show(QSize(800, 640));
  window_.set_visible(5, true);
  auto& field = only<Field>();
  for (const QChar letter : QString("a,bstraena")) key(field, 0, letter);
  EXPECT_EQ(events_.field, "abstrae");
  field.clear();
  QApplication::clipboard()->setText("," + QString(10000, 'x'));
  field.paste();
  EXPECT_EQ(events_.field, "xxxxxxx");
  EXPECT_EQ(field.text(), "xxxxxxx");
  field.setCursorPosition(3);
  key(field, 0, "y");
  EXPECT_EQ(field.text(), "xxxxxxx") << "an eighth letter in the middle pushes none out";
  EXPECT_EQ(field.cursorPosition(), 3);
  key(field, Qt::Key_Return, "\r");
  EXPECT_EQ(events_.confirmed, 1);
  EXPECT_LE(QFontMetrics(field.font()).height(), field.height());
}

TEST_F(WindowTest, APanelGrowsAndThenScrollsSoThatNothingIsLost) {
  std::string text;
  for (int line = 0; line < 14; ++line) text += "Due mazzi di 52 carte, in coppia.\n";
  window_.add_panel(6, text, {"MS Sans Serif", 12}, -1, -1);
  window_.place(6, {0, 0, 285, 197.7F});
  for (const QSize size : {QSize(400, 300), QSize(800, 640), QSize(1600, 1240)}) {
    show(size);
    window_.set_visible(6, true);
    settle();
    auto& panel = only<Panel>();
    const int hidden = qCeil(panel.document()->size().height()) - panel.viewport()->height();
    const QRect place = panel.geometry();
    EXPECT_LE(place.bottom(), window_.table().height());
    // Only the smallest window has too little room for all of it.
    EXPECT_EQ(hidden > 0, size.width() == 400) << size.width();
    EXPECT_EQ(panel.verticalScrollBar()->maximum(), std::max(hidden, 0)) << size.width();
  }
  mouse(*only<Panel>().viewport(), QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton);
  mouse(*only<Panel>().viewport(), QEvent::MouseButtonRelease, {5, 5}, Qt::LeftButton);
  EXPECT_EQ(events_.clicked, std::vector<int>{6});
  EXPECT_TRUE(events_.presses.empty());
}

TEST_F(WindowTest, TheOpeningPictureTakesKeysAndGivesThemBack) {
  window_.add_picture(9, {PictureSet::quadro, 0});
  window_.place(9, {160, 120, 640, 480});
  show(QSize(800, 640));
  window_.set_visible(9, true);
  settle();
  QWidget& picture = only<QWidget>();
  EXPECT_EQ(window_.frame().focusWidget(), &picture);
  key(picture, Qt::Key_Shift, "");
  EXPECT_TRUE(events_.keyed.empty());
  key(picture, Qt::Key_Space, " ");
  EXPECT_EQ(events_.keyed, std::vector<int>{9});
  window_.set_visible(9, false);
  EXPECT_FALSE(window_.visible(9));
  EXPECT_EQ(window_.frame().focusWidget(), &window_.table());
}

TEST_F(WindowTest, BoxesSpeakItalianAndAnswer) {
  show(QSize(800, 640));
  QStringList buttons;
  QTimer::singleShot(20, [&] {
    auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    for (QAbstractButton* button : box->buttons()) buttons += button->text();
    box->buttons().front()->click();
  });
  EXPECT_EQ(window_.message_box("Uscire da Tombrello?", Buttons::yes_no), Answer::yes);
  EXPECT_EQ(buttons, (QStringList{QString::fromUtf8("Sì"), "No"}));
}

TEST_F(WindowTest, SleepsUntilATickAndEndsWithTheFrame) {
  show(QSize(800, 640));
  settle();
  DesktopTimer timer(window_.events());
  timer.start(200);
  int passes = 0;
  while (events_.ticks == 0) {
    window_.serve_events();
    ++passes;
  }
  EXPECT_LT(passes, 20) << "it sleeps between events";
  timer.start(30);
  timer.start(0);
  while (events_.ticks == 1) window_.serve_events();
  EXPECT_EQ(events_.ticks, 2);
  QTimer::singleShot(0, [&] { window_.frame().close(); });
  while (!window_.closing()) window_.serve_events();
  window_.serve_events();
}

}  // namespace
}  // namespace tombrello::qt
