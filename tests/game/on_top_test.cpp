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

// A second painter that knows the table's places by their numbers, paints into a raster, and is
// asked what lies on top: the card painted last, where no box has erased it since. Of a strip
// only its own box erases anything.
class Raster {
 public:
  static constexpr int kStep = 10;  // units between two points that are looked at
  static constexpr int kAcross = 800 / kStep;
  static constexpr int kDown = 600 / kStep;
  static float x_of(int column) { return static_cast<float>(column * kStep) + 2.4F; }
  static float y_of(int row) { return static_cast<float>(row * kStep) + 2.4F; }

  void clear() { *this = Raster(); }
  void box(float left, float top, float right, float bottom) {
    each(left, top, right, bottom, [](Cell& cell) { cell.card = 0; });
  }
  void card(int id, float left, float top, bool lying) {
    ++now_;
    each(left, top, left + (lying ? 94.25F : 60), top + (lying ? 60 : 94.25F), [&](Cell& cell) {
      cell = {id, now_, cell.strips};
    });
  }
  void strip_card(int seat, int id, float left, float top, bool lying) {
    each(left, top, left + (lying ? 94.25F : 60), top + (lying ? 60 : 94.25F), [&](Cell& cell) {
      cell.strips[static_cast<std::size_t>(seat)] = {id, now_};
    });
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
  void each(float left, float top, float right, float bottom, Change change) {
    for (int row = 0; row < kDown; ++row) {
      for (int column = 0; column < kAcross; ++column) {
        const float x = x_of(column);
        const float y = y_of(row);
        const bool inside = left < x && x < right && top < y && y < bottom;
        if (inside) change(cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
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
      : PaintedTable(state, geometry, window), s_(state) {}

  void clear() override {
    PaintedTable::clear();
    raster.clear();
  }
  void ridisegno_carte() override {
    PaintedTable::ridisegno_carte();
    raster.box(250, 460.75F, 570, 580);
    for (int k = 1; k <= s_.n_mano[1]; ++k) {
      const int card = s_.mano[1][k];
      const float y = card > kSelected ? 460.75F : 485.75F;
      raster.card(face(card % kSelected), 230 + 20 * static_cast<float>(k), y, false);
    }
  }
  void ridisegno_dorsi(int seat) override {
    PaintedTable::ridisegno_dorsi(seat);
    if (seat == 2) raster.box(0, 245, 114.25F, 585);
    if (seat == 3) raster.box(250, 19, 570, 114.25F);
    if (seat == 4) raster.box(685.75F, 245, 780, 585);
    for (int k = 1; k <= s_.n_mano[seat]; ++k) back(seat, k, s_.mazzo[k]);
  }
  void calo_carte(int seat) override {
    PaintedTable::calo_carte(seat);
    const std::array<std::array<float, 4>, kSeats + 1> boxes = {{{},
                                                                 {290, 358.5F, 610, 452.75F},
                                                                 {144.25F, 150, 238.5F, 470},
                                                                 {290, 147.25F, 610, 241.5F},
                                                                 {561.5F, 150, 655.75F, 470}}};
    const auto& [left, top, right, bottom] = boxes[static_cast<std::size_t>(seat)];
    raster.box(left, top, right, bottom);
    raster.begin_strip(seat);
    for (int k = 1; k <= s_.n_calate[seat]; ++k) {
      if (s_.calate[seat][k] == kSentinel) continue;
      const float along = 12 * static_cast<float>(k - 1);
      const bool lying = seat == 2 || seat == 4;
      raster.strip_card(seat, face(s_.calate[seat][k]), lying ? left : left + along,
                        lying ? top - 60 + along : top, lying);
    }
  }
  void scopro_carte() override {
    PaintedTable::scopro_carte();
    for (int k = 1; k <= s_.n_mano[2]; ++k) raster.card(face(s_.mano[2][k]), 20, side(k), true);
    for (int k = 1; k <= s_.n_mano[3]; ++k) {
      raster.card(face(s_.mano[3][k]), 356.7F + 20 * static_cast<float>(k), 20, false);
    }
    for (int k = 1; k <= s_.n_mano[4]; ++k) {
      raster.card(face(s_.mano[4][k]), 685.75F, side(k), true);
    }
  }
  void pile_shows(int card) override {
    PaintedTable::pile_shows(card);
    raster.card(face(card), 340, 252.875F, false);
  }
  void pile_empty() override {
    PaintedTable::pile_empty();
    raster.box(340, 252.875F, 400, 347.125F);
  }
  void stock_shows(int back) override {
    PaintedTable::stock_shows(back);
    raster.card(kBack + back, 400, 252.875F, false);
  }
  void stock_empty() override {
    PaintedTable::stock_empty();
    raster.box(400, 252.875F, 460, 347.125F);
  }
  void card_dealt(int seat, int k, int card) override {
    PaintedTable::card_dealt(seat, k, card);
    if (seat != 1) return back(seat, k, card);
    raster.card(face(card), 230 + 20 * static_cast<float>(k), 485.75F, false);
  }
  void card_landed(int seat, int card) override {
    PaintedTable::card_landed(seat, card);
    const int id = kBack + back_number(card);
    if (seat == 2) raster.card(id, 20, 505, true);
    if (seat == 3) raster.card(id, 636.7F, 20, false);
    if (seat == 4) raster.card(id, 685.75F, 505, true);
  }
  void reshuffle_begins() override {
    PaintedTable::reshuffle_begins();  // empties the pile by itself
    raster.card(kBack, 520, 252.875F, false);
  }
  void reshuffle_ends() override {
    PaintedTable::reshuffle_ends();
    raster.box(520, 252.875F, 580, 347.125F);
    raster.box(350, 390, 500, 400);
  }

  Raster raster;

 private:
  static int face(int card) { return first_pack_twin(card); }
  static float side(int k) { return 225 + 20 * static_cast<float>(k); }
  void back(int seat, int k, int card) {
    const int id = kBack + back_number(card);
    const float along = 20 * static_cast<float>(k - 1);
    if (seat == 2) raster.card(id, 20, 150 + along, true);
    if (seat == 3) raster.card(id, 250 + along, 20, false);
    if (seat == 4) raster.card(id, 685.75F, 150 + along, true);
  }

  const State& s_;
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
