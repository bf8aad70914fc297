#pragma once

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "match/rules.h"
#include "tests/rules/recording.h"
#include "tools/simulation/quiet.h"

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

  float x_of_slot(int slot) const {
    return m.ventaglio_x() + (static_cast<float>(slot) - 0.5F) * m.passo_carta();
  }
  void then(std::function<void()> action) { out.actions.push_back(std::move(action)); }
  void post(Azione code, float x = 0) {
    then([this, code, x] {
      s.x_click = x;
      s.azione = code;
    });
  }
  void select(const std::vector<int>& slots) {
    for (const int slot : slots) post(kSelect, x_of_slot(slot));
  }
  void discard(int slot) { post(kDiscard, x_of_slot(slot)); }

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

/// The cards of a whole deck, both packs, in a random order.
inline std::vector<int> random_deck(std::mt19937& engine) {
  std::vector<int> deck(kCards);
  for (int i = 0; i < kCards; ++i) deck[static_cast<std::size_t>(i)] = i + 1;
  std::shuffle(deck.begin(), deck.end(), engine);
  return deck;
}

inline std::string slice_text(const std::vector<int>& hand, int suit) {
  std::string slice(13, '_');
  for (const int code : hand) {
    if (Seme(code) == suit) slice[static_cast<std::size_t>(ValCarta(code) - 1)] = '*';
  }
  return slice;
}

}  // namespace tombrello::test
