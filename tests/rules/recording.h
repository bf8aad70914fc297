#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "cards/outside.h"
#include "tests/rules/cards.h"
#include "tools/simulation/quiet.h"

namespace tombrello::test {

/// What the rules asked of the outside, in order, one line a call.
using Log = std::vector<std::string>;

inline std::string number(double x) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", x);
  return text;
}

/// Thrown when the rules wait and the test has nothing more to post.
struct NothingMoreToPost {};

/// The whole outside: logs every call. Each pass of the wait carries out the next action of a
/// queue, which must be used up; a pause may have an action too.
class RecordingOutside : public Table, public Wait, public Sound, public Shell, public QuietEvents {
 public:
  ~RecordingOutside() override {
    EXPECT_EQ(actions.size(), 0U) << "what was posted was never read";
  }

  void clear() override { add("clear"); }
  void default_pointer() override { add("default_pointer"); }
  void hourglass() override { add("hourglass"); }
  void Posiziona_Players() override { add("Posiziona_Players"); }
  void ridisegno_carte() override { add("ridisegno_carte"); }
  void ridisegno_dorsi(int seat) override { add("ridisegno_dorsi", seat); }
  void calo_carte(int seat) override { add("calo_carte", seat); }
  void scopro_carte() override { add("scopro_carte"); }
  void pile_shows(int card) override { add("pile", name_of(card)); }
  void pile_empty() override { add("pile_empty"); }
  void stock_shows(int back) override { add("stock", back); }
  void stock_empty() override { add("stock_empty"); }
  void card_dealt(int seat, int k, int card) override { add("dealt", seat, k, name_of(card)); }
  void card_drawn(int card) override { add("drawn", name_of(card)); }
  void card_landed(int seat, int card) override { add("landed", seat, name_of(card)); }
  void dealer_screen() override { add("dealer_screen"); }
  void dealer_deck(int back) override { add("dealer_deck", back); }
  void dealer_card(int seat, int card) override { add("dealer_card", seat, name_of(card)); }
  void reshuffle_message() override { add("reshuffle_message"); }
  void reshuffle_begins() override { add("reshuffle_begins"); }
  void reshuffle_ends() override { add("reshuffle_ends"); }
  void panel_line() override { add("panel_line"); }
  void panel_opens() override { add("panel_opens"); }
  void scoreboard() override { add("scoreboard"); }

  void ritardo(float x) override {
    add("ritardo", x);
    if (in_pause) in_pause();
  }
  void serve_events() override {
    if (actions.empty()) throw NothingMoreToPost{};
    const auto action = actions.front();
    actions.pop_front();
    action();
  }

  void Apri_suono(const std::string& nome) override { add("Apri_suono", nome); }
  void suona() override { add("suona"); }
  void beep() override { add("beep"); }

  void Set_Write() override { add("Set_Write"); }
  void enable_replay(bool on) override { add("replay", on); }
  void enable_continue(bool on) override { add("continue", on); }
  void enable_names(bool on) override { add("names", on); }
  bool replay_checked() override { return replay; }
  void uncheck_replay() override {
    replay = false;
    add("uncheck_replay");
  }
  void dealer_card_turned() override {}
  void deal_begins() override { add("deal_begins"); }
  void message(const std::string& text) override { add("message", text); }

  void laid(int seat, int side, Cards cards) override {
    told = number(seat) + " lays at " + number(side) + ": " + names(cards);
  }
  void added(int seat, int side, int card) override {
    told = number(seat) + " adds at " + number(side) + ": " + name_of(card);
  }
  void refused(Refusal why, Cards cards, Cards meld) override {
    constexpr const char* kWhy[] = {"two",      "no meld yet", "full",   "beside",
                                    "fits not", "no meld",     "lowered"};
    told = kWhy[static_cast<int>(why)] + (": " + names(cards)) +
           (meld.empty() ? "" : " by " + names(meld));
  }

  Log log;
  std::string told;  ///< how the last cards of a seat were taken or refused
  bool replay = false;
  std::deque<std::function<void()>> actions;
  std::function<void()> in_pause;

 private:
  static std::string text(const std::string& word) { return word; }
  static std::string text(double value) { return number(value); }
  template <class... Which>
  void add(const std::string& what, const Which&... which) {
    log.push_back((what + ... + (" " + text(which))));
  }
};

}  // namespace tombrello::test
