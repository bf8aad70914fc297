#pragma once

#include <string>

#include "cards/clock.h"
#include "cards/outside.h"

namespace tombrello {

/// An outside that shows nothing, sounds nothing and never waits.

class QuietTable : public Table {
 public:
  void clear() override {}
  void default_pointer() override {}
  void hourglass() override {}
  void Posiziona_Players() override {}
  void ridisegno_carte() override {}
  void ridisegno_dorsi(int) override {}
  void calo_carte(int) override {}
  void scopro_carte() override {}
  void pile_shows(int) override {}
  void pile_empty() override {}
  void stock_shows(int) override {}
  void stock_empty() override {}
  void card_dealt(int, int, int) override {}
  void card_drawn(int) override {}
  void card_landed(int, int) override {}
  void dealer_screen() override {}
  void dealer_deck(int) override {}
  void dealer_card(int, int) override {}
  void reshuffle_message() override {}
  void reshuffle_begins() override {}
  void reshuffle_ends() override {}
  void panel_line() override {}
  void panel_opens() override {}
  void scoreboard() override {}
};

class QuietSound : public Sound {
 public:
  void Apri_suono(const std::string&) override {}
  void suona() override {}
  void beep() override { ++beeps; }

  int beeps = 0;
};

class QuietShell : public Shell {
 public:
  void Set_Write() override {}
  void enable_replay(bool) override {}
  void enable_continue(bool) override {}
  void enable_names(bool) override {}
  bool replay_checked() override { return replay; }
  void uncheck_replay() override { replay = false; }
  void dealer_card_turned() override {}
  void deal_begins() override {}
  void message(const std::string&) override {}

  bool replay = false;
};

class QuietEvents : public Events {
 public:
  void turned_for_dealer(int, int) override {}
  void hand_dealt() override {}
  void drew(int, int) override {}
  void laid(int, int, Cards) override {}
  void added(int, int, int) override {}
  void discarded(int, int) override {}
  void reshuffled() override {}
  void refused(Refusal, Cards, Cards) override {}
  void went_out(int) override {}
  void counted_double(int) override {}
};

/// A clock that moves on by one at each reading.
class CountingClock : public Clock {
 public:
  explicit CountingClock(std::uint64_t start) : now_(start) {}
  std::uint64_t reading() override { return now_++; }

 private:
  std::uint64_t now_;
};

}  // namespace tombrello
