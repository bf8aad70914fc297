#pragma once

#include <string>

#include "cards/events.h"
#include "cards/state.h"

namespace tombrello {

/// What the rules ask of the outside. Nothing that comes back decides a rule, but for the check
/// mark of the replay entry.

/// What is seen. These calls paint and return; none of them waits.
class Table {
 public:
  virtual ~Table() = default;

  virtual void clear() = 0;
  virtual void default_pointer() = 0;
  virtual void hourglass() = 0;

  virtual void Posiziona_Players() = 0;        ///< the four names, the seat on turn in white
  virtual void ridisegno_carte() = 0;          ///< seat 1's hand
  virtual void ridisegno_dorsi(int seat) = 0;  ///< the backs of a computer hand
  virtual void calo_carte(int seat) = 0;       ///< a seat's strip of melds
  virtual void scopro_carte() = 0;             ///< the cards left at the end of a hand

  virtual void pile_shows(int card) = 0;  ///< face of a bare card code
  virtual void pile_empty() = 0;
  virtual void stock_shows(int back) = 0;  ///< back number 0 or 1
  virtual void stock_empty() = 0;

  virtual void card_dealt(int seat, int k, int card) = 0;  ///< k-th card, 1..13, of a fan
  virtual void card_drawn(int card) = 0;                   ///< face at seat 1's next place
  virtual void card_landed(int seat, int card) = 0;        ///< back beside a computer hand

  virtual void dealer_screen() = 0;
  virtual void dealer_deck(int back) = 0;
  virtual void dealer_card(int seat, int card) = 0;

  virtual void reshuffle_message() = 0;
  virtual void reshuffle_begins() = 0;  ///< the pile goes, a back stands for it
  virtual void reshuffle_ends() = 0;    ///< back and message go

  virtual void panel_line() = 0;
  virtual void panel_opens() = 0;  ///< grows to both sides, step by step
  virtual void scoreboard() = 0;
};

/// Time. The only calls of the game that may unwind it: when the player leaves, they throw. They
/// serve events, and so does `Shell::message` as long as its box stands.
class Wait {
 public:
  virtual ~Wait() = default;
  virtual void ritardo(float x) = 0;  ///< x * 6500 / `ritardo_base` milliseconds
  virtual void serve_events() = 0;    ///< one pass; sleeps until something has happened
};

class Sound {
 public:
  virtual ~Sound() = default;
  virtual void Apri_suono(const std::string& nome) = 0;
  virtual void suona() = 0;
  virtual void beep() = 0;
};

/// Settings, menu entries and boxes.
class Shell {
 public:
  virtual ~Shell() = default;
  virtual void Set_Write() = 0;
  virtual void enable_replay(bool enabled) = 0;
  virtual void enable_continue(bool enabled) = 0;
  virtual void enable_names(bool enabled) = 0;
  virtual bool replay_checked() = 0;
  virtual void uncheck_replay() = 0;
  virtual void dealer_card_turned() = 0;              ///< in the draw for dealer
  virtual void deal_begins() = 0;                     ///< the table is cleared for a hand
  virtual void message(const std::string& text) = 0;  ///< returns when it has been answered
};

struct Outside {
  Table& table;
  Wait& wait;
  Sound& sound;
  Shell& shell;
  Events& events;
};

}  // namespace tombrello
