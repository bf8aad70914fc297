// tombrello-quick FOLDER CLOCK DEAL TURNS [RARE]: the game in its window, with its files in
// FOLDER, chance from a clock that counts up from CLOCK, and pauses of so many thousandths of
// their length: DEAL until the pile stands, TURNS from then on, but RARE, unless it is 0, in a
// reshuffle and at the end of a hand. It tells on standard output what a test waits for.

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>
#include <algorithm>
#include <cstdlib>

#include "pictures/pictures.h"
#include "qt/desktop.h"
#include "qt/disk_archive.h"
#include "telling.h"
#include "tests/last_threads.h"

namespace tombrello {
namespace {

// Checked entries from left to right, each with a blank behind it.
std::string checks(const QMenuBar& bar) {
  std::string captions;
  for (const QAction* action : bar.findChildren<QAction*>(Qt::FindDirectChildrenOnly)) {
    if (action->isChecked()) captions += action->text().remove('&').toStdString() + ' ';
  }
  return captions;
}

std::string place(const QWidget& widget, QPoint point) {
  const QPoint place = widget.mapToGlobal(point);
  return std::to_string(place.x()) + ',' + std::to_string(place.y());
}

// Where entries and buttons stand on the screen, by their captions.
template <class Container>
void add_actions(Line& line, const Container& container) {
  for (const QAction* action : container.actions()) {
    line.add(action->text().remove('&').toStdString(),
             place(container, container.actionGeometry(const_cast<QAction*>(action)).center()));
  }
}

void add_screen(Line& line) {
  const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box != nullptr && !box->isActiveWindow()) box = nullptr;  // not in its place yet
  line.add("box", box == nullptr ? "" : box->text().section('\n', 0, 0).toStdString());
  line.add("popup", QApplication::activePopupWidget() != nullptr);
  for (const QWidget* widget : QApplication::topLevelWidgets()) {
    if (!widget->isVisible()) continue;
    if (const auto* frame = qobject_cast<const QMainWindow*>(widget)) {
      line.add("width", frame->width()).add("height", frame->height());
      line.add("bar", frame->centralWidget()->y()).add("minimised", frame->isMinimized());
      const auto* chronicle = frame->findChild<QLabel*>("chronicle");
      line.add("line", chronicle->height()).add("chronicle", chronicle->text().toStdString());
      line.add("front", frame->isActiveWindow()).add("maximised", frame->isMaximized());
      add_actions(line, *frame->findChild<QMenuBar*>());
      line.add("checks", checks(*frame->findChild<QMenuBar*>()));
    } else if (const auto* menu = qobject_cast<const QMenu*>(widget)) {
      add_actions(line, *menu);
    }
  }
  if (box != nullptr) {
    for (const QAbstractButton* button : box->buttons()) {
      line.add(button->text().remove('&').toStdString(), place(*button, button->rect().center()));
    }
  }
}

}  // namespace
}  // namespace tombrello

#ifdef __SANITIZE_ADDRESS__
// Without a session bus the bus library leaves an error behind; and where the screen is lost Qt
// ends the process on the spot, without a word to the library of fonts.
extern "C" const char* __lsan_default_options() {
  return "print_suppressions=0";  // a test looks at all that is said
}
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libdbus-1\nleak:libfontconfig";
}
#endif

int main(int argc, char** argv) {
  using namespace tombrello;
  qt::Desktop desktop(argc, argv, art::draw_picture, art::draw_icon);
  if (argc < 5 || argc > 6) return 2;
  const std::filesystem::path folder = argv[1];
  qt::DiskArchive archive(folder, folder / "user");
  QuickGame::Numbers numbers{};
  std::transform(argv + 2, argv + argc, numbers.begin(), [](const char* n) { return atoi(n); });
  QuickGame game(desktop, archive, qt::capital, numbers);
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &look, [&] { game.tell(add_screen); });
  look.start(15);
  game.run();
  return 0;
}
