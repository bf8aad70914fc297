#pragma once

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

/// A line of what is told: its kind, and behind it keys with their values.
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

inline void add_state(Line& line, const State& s) {
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
inline std::string texts(const Surface& surface) {
  std::string all;
  for (const Item& item : surface.items()) {
    if (const auto* text = std::get_if<TextItem>(&item)) all += text->text + '|';
  }
  return all;
}

inline void add_window(Line& line, Window& w) {
  line.add("replay", w.enabled(menu_replay)).add("continue", w.enabled(menu_continue));
  line.add("names", w.enabled(personalize_players)).add("marked", w.checked(menu_replay));
  line.add("rustle", w.checked(menu_card_rustle_1)).add("opening", w.visible(quadro));
  line.add("rules", w.visible(TxtItaliano)).add("help", w.visible(TxtHelp));
  line.add("info", w.visible(Text4)).add("dialog", w.visible(TxtPlayer_0 + 1));
  line.add("pointer", static_cast<int>(w.pointer()));
  line.add("texts", texts(w.surface()));
}

}  // namespace tombrello
