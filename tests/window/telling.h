#pragma once

#include <array>
#include <cstdio>
#include <functional>
#include <string>
#include <utility>

#include "cards/state.h"
#include "match/state_check.h"
#include "seam/surface.h"
#include "seam/timer.h"
#include "seam/window.h"
#include "shell/ids.h"
#include "shell/program.h"
#include "tools/simulation/quiet.h"

namespace tombrello {

/// Shortens each period to so many thousandths of it.
class QuickTimer : public Timer {
 public:
  QuickTimer(Timer& timer, std::function<int()> thousandths)
      : timer_(timer), thousandths_(std::move(thousandths)) {}
  void start(int milliseconds) override { timer_.start(milliseconds * thousandths_() / 1000); }

 private:
  Timer& timer_;
  std::function<int()> thousandths_;
};

/// All that is told of one moment: keys with their values.
class Line {
 public:
  Line& add(const std::string& key, const std::string& value) {
    text_ += key + '=' + value + '\t';
    return *this;
  }
  Line& add(const std::string& key, int value) { return add(key, std::to_string(value)); }
  template <class Numbers>
  Line& add(const std::string& key, const Numbers& numbers, int first, int last) {
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

/// The game on a desktop, with its numbers as they are told in quick_game.cpp.
class QuickGame {
 public:
  using Numbers = std::array<int, 4>;

  template <class Desktop>
  QuickGame(Desktop& desktop, Archive& archive, Capital capital, const Numbers& numbers)
      : window_(desktop.window()),
        numbers_(numbers),
        clock_(static_cast<std::uint64_t>(numbers[0])),
        timer_(desktop.timer(), [this] { return thousandths(); }),
        program_({window_, timer_, archive, clock_, desktop.wave(), desktop.sequencer(),
                  desktop.beeper(), *capital}) {
    desktop.set_media_events(&program_);
  }
  void run() { program_.run(); }

  /// Prints a line if it differs from the last one; `add_screen` adds what only the system knows.
  template <class AddScreen>
  void tell(AddScreen add_screen) {
    Line line;
    add_state(line);
    add_window(line);
    add_screen(line);
    if (line.text() == told_) return;
    told_ = line.text();
    std::puts(told_.c_str());
    std::fflush(stdout);
  }

 private:
  int thousandths() const {
    const State& s = program_.state();
    const bool rare =
        s.phase == Phase::open_hands || texts().find("Rimescolo") != std::string::npos;
    if (rare && numbers_[3] != 0) return numbers_[3];
    return numbers_[s.n_pozzo == 0 && !s.ha_pescato ? 1 : 2];
  }

  // What is printed on the table, each text with a bar behind it.
  std::string texts() const {
    std::string all;
    for (const Item& item : window_.surface().items()) {
      if (const auto* text = std::get_if<TextItem>(&item)) all += text->text + '|';
    }
    return all;
  }

  void add_state(Line& line) const {
    const State& s = program_.state();
    line.add("seat", s.di_turno).add("action", s.azione).add("drawn", s.ha_pescato);
    line.add("dealer", s.cartaro).add("deck", s.mazzo, 1, kCards);
    line.add("index", s.indice_estrazione).add("n", s.n_mano, 1, kSeats);
    for (int seat = 1; seat <= kSeats; ++seat) {
      const std::string number = std::to_string(seat);
      line.add("hand" + number, s.mano[seat], 1, s.n_mano[seat]);
      line.add("name" + number, s.nomi[static_cast<std::size_t>(seat - 1)]);
    }
    line.add("melds1", s.calate[1], 1, s.n_calate[1]);
    line.add("pile", s.n_pozzo).add("stock", s.tallone).add("round", s.numero_mano);
    line.add("totals", s.punti_totali, 1, 2);
    // Between turns, which is when seat 1 is waited for, the state must be sound.
    const bool between_turns = s.di_turno == 1 && !s.ha_pescato && s.n_pozzo > 0;
    line.add("fault", between_turns ? check_state(s, {}) : "");
  }

  void add_window(Line& line) const {
    line.add("continue", window_.enabled(menu_continue));
    line.add("opening", window_.visible(quadro)).add("rules", window_.visible(TxtItaliano));
    line.add("help", window_.visible(TxtHelp)).add("info", window_.visible(Text4));
    line.add("dialog", window_.visible(TxtPlayer_0 + 1));
    line.add("pointer", static_cast<int>(window_.pointer())).add("texts", texts());
  }

  Window& window_;
  Numbers numbers_;
  CountingClock clock_;
  QuickTimer timer_;
  Program program_;
  std::string told_;
};

}  // namespace tombrello
