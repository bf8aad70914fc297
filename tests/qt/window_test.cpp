#include <gtest/gtest.h>

#include <QApplication>
#include <QBackingStore>
#include <QPainter>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QtMath>
#include <array>
#include <random>

#include "qt/canvas.h"
#include "qt/desktop_timer.h"
#include "qt/desktop_window.h"
#include "sample_pictures.h"

namespace tombrello::qt {
namespace {

struct Listener : EventRelay {
  void pressed(Button button, float x, float y) override {
    presses.push_back({static_cast<float>(button), x, y});
  }
  void field_changed(ControlId, const std::string& text) override { field = text; }
  void timer_ticked() override { ++ticks; }

  std::vector<std::array<float, 3>> presses;
  std::string field;
  int ticks = 0;
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
  DesktopWindow window_{sample_picture};
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
    EXPECT_TRUE(shown.copy(table) == wanted().copy(table)) << size.width();
  }
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

TEST_F(WindowTest, ReportsPressesWhereverTheyFall) {
  show(QSize(1000, 600));  // wider than the table
  QWindow* const window = window_.frame().windowHandle();
  const QPoint corner = window_.table().mapTo(&window_.frame(), QPoint(0, 0));
  const QPoint middle(window_.table().width() / 2, window_.table().height() / 2);
  QTest::mouseDClick(window, Qt::LeftButton, {}, corner + middle);
  QTest::mouseClick(window, Qt::BackButton, {}, corner + QPoint(1, 1));
  ASSERT_GE(events_.presses.size(), 3U);
  for (const auto& [button, x, y] : {events_.presses[0], events_.presses[1]}) {
    EXPECT_EQ(button, 1);
    EXPECT_NEAR(x, 400, 1);
    EXPECT_NEAR(y, 300, 1);
  }
  EXPECT_EQ(events_.presses.back()[0], 4);
  EXPECT_EQ(events_.presses.back()[1], 0) << "beside the table: its nearest border";
}

TEST_F(WindowTest, AnEighthLetterInTheMiddlePushesNoneOut) {
  const FieldRule seven = [](const std::string& text, int already) {
    return text.substr(0, 7U - static_cast<unsigned>(already));
  };
  window_.add_field(5, seven, {"MS Sans Serif", 7.8F});
  window_.place(5, {75, 32, 135, 46.8F});
  show(QSize(800, 640));
  window_.set_visible(5, true);
  auto& field = only<Field>();
  QTest::keyClicks(&field, "abcdefgh");
  EXPECT_EQ(events_.field, "abcdefg");
  field.setCursorPosition(3);
  QTest::keyClicks(&field, "y");
  EXPECT_EQ(field.text(), "abcdefg");
  EXPECT_EQ(field.cursorPosition(), 3);
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
    QTest::keyClick(&window_.table(), Qt::Key_End);
    EXPECT_EQ(panel.verticalScrollBar()->value(), std::max(hidden, 0)) << "by key";
  }
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
