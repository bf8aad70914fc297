#include <gtest/gtest.h>

#include <array>
#include <memory>

#include "headless/headless_window.h"
#include "match/rules.h"
#include "table/painted_table.h"
#include "tools/simulation/quiet.h"
#include "tools/simulation/script.h"

namespace tombrello {
namespace {

// A second painter, which paints into a raster and is asked what lies on top: the card painted
// last, where no box has erased it since. Of a strip only its own box erases anything.
class Raster {
 public:
  static constexpr int kStep = 10;  // units between two points that are looked at
  static constexpr int kAcross = 800 / kStep;
  static constexpr int kDown = 600 / kStep;
  static float x_of(int column) { return static_cast<float>(column * kStep) + 2.4F; }
  static float y_of(int row) { return static_cast<float>(row * kStep) + 2.4F; }

  void clear() { *this = Raster(); }
  void box(const Place& place) {
    each(place, [](Cell& cell) { cell.card = 0; });
  }
  void card(int id, const Place& place) {
    ++now_;
    each(place, [&](Cell& cell) { cell = {id, now_, cell.strips}; });
  }
  void strip_card(int seat, int id, const Place& place) {
    each(place, [&](Cell& cell) { cell.strips[static_cast<std::size_t>(seat)] = {id, now_}; });
  }
  void begin_strip(int seat) {
    ++now_;
    for (auto& row : cells_) {
      for (Cell& cell : row) cell.strips[static_cast<std::size_t>(seat)] = {};
    }
  }
  int on_top(int column, int row) const {
    const Cell& cell = cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    int id = cell.card;
    int time = cell.card == 0 ? 0 : cell.time;
    for (const auto& [strip_id, strip_time] : cell.strips) {
      if (strip_time <= time) continue;
      id = strip_id;
      time = strip_time;
    }
    return id;
  }

 private:
  struct StripCell {
    int id = 0;
    int time = 0;
  };
  struct Cell {
    int card = 0;
    int time = 0;
    std::array<StripCell, kSeats + 1> strips{};
  };

  template <class Change>
  void each(const Place& place, Change change) {
    for (int row = 0; row < kDown; ++row) {
      for (int column = 0; column < kAcross; ++column) {
        if (!place.holds(x_of(column), y_of(row))) continue;
        change(cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
      }
    }
  }

  std::array<std::array<Cell, kAcross>, kDown> cells_{};
  int now_ = 0;
};

constexpr int kBack = 200;  // and 201

int id_of(const PictureItem& item) {
  const bool back =
      item.picture.set == PictureSet::dorsov || item.picture.set == PictureSet::dorsoo;
  return (back ? kBack : 0) + item.picture.index;
}

int on_top(const Surface& surface, float x, float y) {
  int id = 0;
  for (const Item& item : surface.items()) {
    if (const auto* box = std::get_if<BoxItem>(&item)) {
      if (box->filled && box->area.contains(x, y)) id = 0;
    } else if (const auto* picture = std::get_if<PictureItem>(&item)) {
      if (picture->area.contains(x, y)) id = id_of(*picture);
    }
  }
  return id;
}

/// Paints everything twice.
class TwicePainted : public PaintedTable {
 public:
  TwicePainted(const State& state, const Geometry& geometry, Window& window)
      : PaintedTable(state, geometry, window), s_(state), g_(geometry) {}

  void clear() override {
    PaintedTable::clear();
    raster.clear();
  }
  void ridisegno_carte() override {
    PaintedTable::ridisegno_carte();
    raster.box(g_.hand_box());
    for (int k = 1; k <= s_.n_mano[1]; ++k) {
      const int card = s_.mano[1][k];
      raster.card(face(card % kSelected), g_.hand_card(k, card > kSelected));
    }
  }
  void ridisegno_dorsi(int seat) override {
    PaintedTable::ridisegno_dorsi(seat);
    if (seat == 1) return;
    raster.box(g_.backs_box(seat));
    for (int k = 1; k <= s_.n_mano[seat]; ++k) back(s_.mazzo[k], g_.back(seat, k));
  }
  void calo_carte(int seat) override {
    PaintedTable::calo_carte(seat);
    raster.box(g_.strip(seat));
    raster.begin_strip(seat);
    for (int k = 1; k <= s_.n_calate[seat]; ++k) {
      if (s_.calate[seat][k] == kSentinel) continue;
      raster.strip_card(seat, face(s_.calate[seat][k]), g_.strip_card(seat, k));
    }
  }
  void scopro_carte() override {
    PaintedTable::scopro_carte();
    for (int seat = 2; seat <= kSeats; ++seat) {
      for (int k = 1; k <= s_.n_mano[seat]; ++k) {
        raster.card(face(s_.mano[seat][k]), g_.open_card(seat, k));
      }
    }
  }
  void pile_shows(int card) override {
    PaintedTable::pile_shows(card);
    raster.card(face(card), g_.pile());
  }
  void pile_empty() override {
    PaintedTable::pile_empty();
    raster.box(g_.pile());
  }
  void stock_shows(int pack) override {
    PaintedTable::stock_shows(pack);
    raster.card(kBack + pack, g_.stock());
  }
  void stock_empty() override {
    PaintedTable::stock_empty();
    raster.box(g_.stock());
  }
  void card_dealt(int seat, int k, int card) override {
    PaintedTable::card_dealt(seat, k, card);
    if (seat == 1) return raster.card(face(card), g_.hand_card(k, false));
    back(card, g_.back(seat, k));
  }
  void card_landed(int seat, int card) override {
    PaintedTable::card_landed(seat, card);
    back(card, g_.landing(seat));
  }
  void reshuffle_begins() override {
    PaintedTable::reshuffle_begins();  // empties the pile by itself
    raster.card(kBack, g_.shuffled_pile());
  }
  void reshuffle_ends() override {
    PaintedTable::reshuffle_ends();
    raster.box(g_.shuffled_pile());
    raster.box(g_.reshuffle_message());
  }

  Raster raster;

 private:
  static int face(int card) { return first_pack_twin(card); }
  void back(int card, const Place& place) { raster.card(kBack + back_number(card), place); }

  const State& s_;
  const Geometry& g_;
};

class ScriptedWait : public Wait {
 public:
  ScriptedWait(State& state, const Geometry& geometry, Script& script)
      : s_(state), g_(geometry), script_(script) {}
  void ritardo(float) override {}
  void serve_events() override { script_.act(s_, g_); }

 private:
  State& s_;
  const Geometry& g_;
  Script& script_;
};

TEST(OnTop, EveryCardLiesWhereAndOverWhatItShould) {
  for (std::uint64_t seed = 1; seed <= 40; ++seed) {
    State s;
    const Geometry g;
    HeadlessTimer timer;
    HeadlessWindow window(timer);
    TwicePainted table(s, g, window);
    const auto script = make_script(ScriptKind::melder, seed);
    ScriptedWait wait(s, g, *script);
    QuietSound sound;
    QuietShell shell;
    QuietEvents events;
    CountingClock clock(seed);
    Rules rules(s, g, clock, {table, wait, sound, shell, events});
    const auto compare = [&](int turn) {
      for (int row = 0; row < Raster::kDown; ++row) {
        for (int column = 0; column < Raster::kAcross; ++column) {
          const float x = Raster::x_of(column);
          const float y = Raster::y_of(row);
          ASSERT_EQ(on_top(window.surface(), x, y), table.raster.on_top(column, row))
              << "at " << x << ", " << y << " after turn " << turn << " of hand " << seed;
        }
      }
    };
    s.cartaro = static_cast<std::uint8_t>(1 + seed % kSeats);
    s.di_turno = static_cast<std::uint8_t>(next_seat(s.cartaro));
    rules.match.start_hand();
    bool over = false;
    for (int turn = 1; turn <= 150 && !over; ++turn) {
      over = rules.match.play_turn();
      compare(turn);
      if (HasFatalFailure()) return;
      if (!over) rules.match.pass_turn();
    }
    if (!over) continue;
    table.scopro_carte();
    compare(0);
  }
}

}  // namespace
}  // namespace tombrello
