// The mark, moved over a table in the middle of a hand, in the real window.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <array>

#include "bench/some_hand.h"
#include "headless/headless_window.h"
#include "pictures/pictures.h"
#include "qt/desktop_window.h"
#include "shell/mark.h"

namespace tombrello {
namespace {

State some_turn() {
  State s = some_hand();
  s.di_turno = 1;
  s.ha_pescato = true;
  s.azione = kNoAction;
  return s;
}

struct Turn {
  Turn(int width, int height) {
    window.add_entry(personalize_players, kMenuBar, "");
    panels.create();
    names.create();
    window.surface().set_background(kFelt);
    table.repaint();
    window.frame().resize(width, height);
    window.frame().show();
    show();
  }
  /// Until nothing is left to be painted.
  void show() {
    window.table().show_changes();
    for (int passes = 0; passes < 3; ++passes) QCoreApplication::processEvents();
  }

  State s = some_turn();
  Geometry g;
  qt::DesktopWindow window{art::draw_picture};
  MemoryArchive archive;
  Settings settings{s, archive};
  Panels panels{window};
  PaintedTable table{s, g, window};
  NamesDialog names{s, window, settings, table, plain_capital};
  Chronicle chronicle{s, window};
  Pointer pointer{s, g, window, panels, names, chronicle};
  Places places{s, g, pointer};
  Mark mark{window, pointer, places};
};

// From the pointer's place to the last pixel, from one end of the fan to the other and back.
void move_by_mouse(benchmark::State& run) {
  Turn turn(static_cast<int>(run.range(0)), static_cast<int>(run.range(1)));
  int step = 0;
  for (auto _ : run) {
    step = (step + 1) % 26;
    turn.mark.pointer_moved(turn.g.x_of_slot(step < 13 ? step + 1 : 27 - step), 550);
    QCoreApplication::processEvents();
  }
}
BENCHMARK(move_by_mouse)
    ->Args({800, 600})
    ->Args({1920, 1080})
    ->Args({3840, 2160})
    ->Unit(benchmark::kMicrosecond);

// A key, and the wait behind it, which brings the mark up to date.
void move_by_key(benchmark::State& run) {
  Turn turn(static_cast<int>(run.range(0)), static_cast<int>(run.range(1)));
  for (auto _ : run) {
    turn.mark.move(Key::next);
    turn.mark.refresh();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(move_by_key)->Args({3840, 2160})->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tombrello
