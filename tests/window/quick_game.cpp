// tombrello-quick FOLDER CLOCK DEAL TURNS: the game in its window, with its files in FOLDER,
// chance from a clock that counts up from CLOCK, and pauses of so many thousandths of their
// length: DEAL until the pile stands, TURNS from then on. It tells on standard output what a test
// waits for.

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include "match/state_check.h"
#include "pictures/pictures.h"
#include "qt/desktop.h"
#include "qt/disk_archive.h"
#include "shell/ids.h"
#include "shell/program.h"
#include "tools/simulation/quiet.h"

namespace tombrello {
namespace {

class QuickTimer : public Timer {
 public:
  QuickTimer(Timer& timer, std::function<int()> thousandths)
      : timer_(timer), thousandths_(std::move(thousandths)) {}
  void start(int milliseconds) override { timer_.start(milliseconds * thousandths_() / 1000); }

 private:
  Timer& timer_;
  std::function<int()> thousandths_;
};

/// Prints a line whenever it differs from the last one of its kind.
class Teller {
 public:
  void tell(const std::string& line) {
    if (line == last_) return;
    last_ = line;
    std::puts(line.c_str());
    std::fflush(stdout);
  }

 private:
  std::string last_;
};

class Line {
 public:
  explicit Line(const char* kind) : text_(kind) {}
  Line& add(const char* key, const std::string& value) {
    text_ += '\t';
    text_ += key;
    text_ += '=' + value;
    return *this;
  }
  Line& add(const char* key, int value) { return add(key, std::to_string(value)); }
  template <class Numbers>
  Line& add(const char* key, const Numbers& numbers, int first, int last) {
    std::string list;
    for (int k = first; k <= last; ++k) {
      list += std::to_string(numbers[static_cast<std::size_t>(k)]) + (k < last ? "," : "");
    }
    return add(key, list);
  }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

void add_state(Line& line, const State& s) {
  line.add("seat", s.di_turno).add("action", s.azione).add("drawn", s.ha_pescato);
  line.add("dealer", s.cartaro).add("turned", s.valori_estratti, 1, kSeats);
  line.add("index", s.indice_estrazione).add("n", s.n_mano, 1, kSeats);
  for (int seat = 1; seat <= kSeats; ++seat) {
    const std::string number = std::to_string(seat);
    line.add(("hand" + number).c_str(), s.mano[seat], 1, s.n_mano[seat]);
    line.add(("melds" + number).c_str(), s.calate[seat], 1, s.n_calate[seat]);
  }
  line.add("pile", s.n_pozzo).add("top", s.n_pozzo > 0 ? s.pozzo[s.n_pozzo - 1U] : 0);
  line.add("stock", s.tallone).add("round", s.numero_mano).add("totals", s.punti_totali, 1, 2);
  for (std::size_t i = 0; i < s.nomi.size(); ++i) {
    line.add(("name" + std::to_string(i + 1)).c_str(), s.nomi[i]);
  }
  // Between turns, which is when seat 1 is waited for, the state must be sound.
  const bool between_turns = s.di_turno == 1 && !s.ha_pescato && s.n_pozzo > 0;
  line.add("fault", between_turns ? check_state(s, {}) : "");
}

// What is printed on the table, each text with a bar behind it.
std::string texts(const Surface& surface) {
  std::string all;
  for (const Item& item : surface.items()) {
    if (const auto* text = std::get_if<TextItem>(&item)) all += text->text + '|';
  }
  return all;
}

void add_window(Line& line, Window& w) {
  line.add("replay", w.enabled(menu_replay)).add("continue", w.enabled(menu_continue));
  line.add("names", w.enabled(personalize_players)).add("marked", w.checked(menu_replay));
  for (int i = 1; i <= 3; ++i) {
    if (w.checked(velocita_0 + i)) line.add("speed", i);
  }
  line.add("rustle", w.checked(menu_card_rustle_1)).add("opening", w.visible(quadro));
  line.add("rules", w.visible(TxtItaliano)).add("help", w.visible(TxtHelp));
  line.add("info", w.visible(Text4)).add("dialog", w.visible(TxtPlayer_0 + 1));
  line.add("pointer", static_cast<int>(w.pointer()));
  line.add("texts", texts(w.surface()));
}

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
    line.add(action->text().remove('&').toStdString().c_str(),
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
      line.add("ready", frame->isMaximized() && frame->isActiveWindow());
      add_actions(line, *frame->findChild<QMenuBar*>());
      line.add("checks", checks(*frame->findChild<QMenuBar*>()));
    } else if (const auto* menu = qobject_cast<const QMenu*>(widget)) {
      add_actions(line, *menu);
    }
  }
  if (box != nullptr) {
    for (const QAbstractButton* button : box->buttons()) {
      line.add(button->text().remove('&').toStdString().c_str(),
               place(*button, button->rect().center()));
    }
  }
}

}  // namespace
}  // namespace tombrello

#ifdef __SANITIZE_ADDRESS__
// Without a session bus the bus library leaves an error behind.
extern "C" const char* __lsan_default_options() {
  return "print_suppressions=0";  // a test looks at all that is said
}
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libdbus-1";
}
#endif

int main(int argc, char** argv) {
  using namespace tombrello;
  using namespace tombrello::qt;
  Desktop desktop(argc, argv, art::draw_picture, art::draw_icon());
  if (argc != 5) return 2;
  const QString folder = argv[1];
  DiskArchive archive(folder, folder + "/user");
  CountingClock clock(std::strtoull(argv[2], nullptr, 10));
  const State* state = nullptr;
  QuickTimer timer(desktop.timer(), [&] {
    return std::atoi(state->n_pozzo == 0 && !state->ha_pescato ? argv[3] : argv[4]);
  });
  Program program({desktop.window(), timer, archive, clock, desktop.wave(), desktop.sequencer(),
                   desktop.beeper(), capital});
  desktop.set_media_events(&program);
  state = &program.state();
  Teller deck;
  Teller game;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    deck.tell(Line("cards").add("deck", program.state().mazzo, 1, kCards).text());
    Line line("game");  // all in one, so that a reader sees one moment
    add_state(line, program.state());
    add_window(line, desktop.window());
    add_screen(line);
    game.tell(line.text());
  });
  look.start(15);
  program.run();
  return 0;
}
