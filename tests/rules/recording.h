#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "cards/outside.h"
#include "tests/rules/cards.h"

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
class RecordingOutside : public Table, public Wait, public Sound, public Shell, public Events {
 public:
  ~RecordingOutside() override {
    EXPECT_EQ(actions.size(), 0U) << "what was posted was never read";
  }

  void clear() override { add("clear"); }
  void default_pointer() override { add("default_pointer"); }
  void hourglass() override { add("hourglass"); }
  void Posiziona_Players() override { add("Posiziona_Players"); }
  void ridisegno_carte() override { add("ridisegno_carte"); }
  void ridisegno_dorsi(int seat) override { add("ridisegno_dorsi", number(seat)); }
  void calo_carte(int seat) override { add("calo_carte", number(seat)); }
  void scopro_carte() override { add("scopro_carte"); }
  void pile_shows(int card) override { add("pile", name_of(card)); }
  void pile_empty() override { add("pile_empty"); }
  void stock_shows(int back) override { add("stock", number(back)); }
  void stock_empty() override { add("stock_empty"); }
  void card_dealt(int seat, int k, int card) override {
    add("dealt", number(seat) + " " + number(k) + " " + name_of(card));
  }
  void card_drawn(int card) override { add("drawn", name_of(card)); }
  void card_landed(int seat, int card) override {
    add("landed", number(seat) + " " + name_of(card));
  }
  void dealer_screen() override { add("dealer_screen"); }
  void dealer_deck(int back) override { add("dealer_deck", number(back)); }
  void dealer_card(int seat, int card) override {
    add("dealer_card", number(seat) + " " + name_of(card));
  }
  void reshuffle_message() override { add("reshuffle_message"); }
  void reshuffle_begins() override { add("reshuffle_begins"); }
  void reshuffle_ends() override { add("reshuffle_ends"); }
  void panel_line() override { add("panel_line"); }
  void panel_opens() override { add("panel_opens"); }
  void scoreboard() override { add("scoreboard"); }

  void ritardo(float x) override {
    add("ritardo", number(x));
    if (in_pause) in_pause();
  }
  void serve_events() override {
    if (actions.empty() && otherwise) return otherwise();
    if (actions.empty()) throw NothingMoreToPost{};
    const auto action = actions.front();
    actions.pop_front();
    action();
  }

  void Apri_suono(const std::string& nome) override { add("Apri_suono", nome); }
  void suona() override { add("suona"); }
  void beep() override { add("beep"); }

  void Set_Write() override { add("Set_Write"); }
  void enable_replay(bool on) override { add("replay", number(on)); }
  void enable_continue(bool on) override { add("continue", number(on)); }
  void enable_names(bool on) override { add("names", number(on)); }
  bool replay_checked() override { return replay; }
  void uncheck_replay() override {
    replay = false;
    add("uncheck_replay");
  }
  void dealer_card_turned() override {}
  void deal_begins() override { add("deal_begins"); }
  void message(const std::string& text) override { add("message", text); }

  void turned_for_dealer(int seat, int card) override {
    told.push_back(number(seat) + " turned " + name_of(card));
  }
  void hand_dealt() override { told.emplace_back("dealt"); }
  void drew(int seat, int card) override {
    told.push_back(number(seat) + " drew " + (card == 0 ? "stock" : name_of(card)));
  }
  void laid(int seat, int side, Cards cards) override {
    told.push_back(number(seat) + " laid" + names_of(cards) + " at " + number(side));
  }
  void added(int seat, int side, int card) override {
    told.push_back(number(seat) + " added " + name_of(card) + " at " + number(side));
  }
  void discarded(int seat, int card) override {
    told.push_back(number(seat) + " discarded " + name_of(card));
  }
  void reshuffled() override { told.emplace_back("reshuffled"); }
  void refused(Refusal why, Cards cards, Cards meld) override {
    told.push_back("refused " + number(static_cast<int>(why)) + names_of(cards) +
                   (meld.empty() ? "" : " by") + names_of(meld));
  }
  void went_out(int seat) override { told.push_back(number(seat) + " went out"); }
  void counted_double(int team) override { told.push_back("double " + number(team)); }

  Log log;
  Log told;  // the events
  bool replay = false;
  std::deque<std::function<void()>> actions;
  std::function<void()> otherwise;  // once the queue is empty
  std::function<void()> in_pause;

 private:
  static std::string names_of(Cards cards) {
    std::string names;
    for (const int card : cards) names += " " + name_of(card);
    return names;
  }
  void add(const char* what) { log.emplace_back(what); }
  void add(const char* what, const std::string& which) { log.push_back(what + (" " + which)); }
};

}  // namespace tombrello::test
