#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "match/rules.h"
#include "tests/rules/recording.h"

namespace tombrello::test {

/// A table with a rules engine on it, where a test lays out a situation card by card.
struct Deal {
  explicit Deal(std::uint64_t clock_start = 1) : clock(clock_start) {
    s.di_turno = 1;
    pile("Kc");
    stock("2c 2c'");
  }

  void hand(int seat, const std::vector<int>& codes) {
    s.mano[seat] = {};
    s.n_mano[seat] = static_cast<std::uint8_t>(codes.size());
    std::copy(codes.begin(), codes.end(), s.mano[seat].begin() + 1);
    rules.hands.rebuild_presenze(seat);
  }
  void hand(int seat, const std::string& text) { hand(seat, cards(text)); }

  /// The melds of a seat, as in "3h 4h 5h | 7s 7d 7c".
  void table(int seat, const std::string& text) {
    auto list = cards(text);
    if (!list.empty()) list.push_back(kSentinel);
    s.calate[seat] = {};
    s.n_calate[seat] = static_cast<std::uint8_t>(list.size());
    std::copy(list.begin(), list.end(), s.calate[seat].begin() + 1);
  }

  /// Bottom first.
  void pile(const std::string& text) {
    const auto codes = cards(text);
    s.n_pozzo = static_cast<std::int16_t>(codes.size());
    std::copy(codes.begin(), codes.end(), s.pozzo.begin());
  }
  /// The next card first.
  void stock(const std::string& text) {
    const auto codes = cards(text);
    s.tallone = static_cast<std::int16_t>(kCards + 1 - static_cast<int>(codes.size()));
    std::copy(codes.begin(), codes.end(), s.mazzo.begin() + s.tallone);
  }
  /// A deck in order, with pile and stock as they stand when `tallone` is the next slot.
  void stock_at(int tallone) {
    for (int i = 1; i <= kCards; ++i) s.mazzo[i] = static_cast<std::int16_t>(i);
    s.tallone = static_cast<std::int16_t>(tallone);
    s.n_pozzo = static_cast<std::int16_t>(tallone - 53);
    for (int i = 0; i < s.n_pozzo; ++i) s.pozzo[i] = s.mazzo[53 + i];
  }

  std::vector<int> hand_of(int seat) const {
    return {s.mano[seat].begin() + 1, s.mano[seat].begin() + 1 + s.n_mano[seat]};
  }
  std::string hand_text(int seat) const { return names(hand_of(seat)); }
  /// The melds of a seat, the closing sentinel left out.
  std::string table_text(int seat) const {
    const int n = s.n_calate[seat];
    return names(
        std::vector<int>(s.calate[seat].begin() + 1, s.calate[seat].begin() + (n == 0 ? 1 : n)));
  }
  std::string pile_text() const {
    return names(std::vector<int>(s.pozzo.begin(), s.pozzo.begin() + s.n_pozzo));
  }

  void then(std::function<void()> action) { out.actions.push_back(std::move(action)); }
  void post(Azione code, float x = 0) {
    then([this, code, x] {
      s.x_click = x;
      s.azione = code;
    });
  }
  void select(const std::vector<int>& slots) {
    for (const int slot : slots) post(kSelect, m.x_of_slot(slot));
  }
  void discard(int slot) { post(kDiscard, m.x_of_slot(slot)); }

  State s;
  Geometry m;
  CountingClock clock;
  RecordingOutside out;
  Log& log = out.log;
  Rules rules{s, m, clock, {out, out, out, out, out}};
};

/// The lines of a log that begin with one of some words, in order.
inline Log only(const Log& log, const std::vector<std::string>& words) {
  Log kept;
  for (const auto& line : log) {
    const auto begins = [&](const std::string& word) { return line.rfind(word, 0) == 0; };
    if (std::any_of(words.begin(), words.end(), begins)) kept.push_back(line);
  }
  return kept;
}

}  // namespace tombrello::test
