#include <algorithm>
#include <map>

#include "player.h"

namespace tombrello {
namespace {

namespace files = std::filesystem;

enum class Moment {
  opening,
  draw,
  first_card,
  deal,
  own_turn,
  own_turn_by_keys,
  computer_turn,
  scoreboard,
  match_over
};

// The way through the menus, and what the game tells then of what it told otherwise before.
struct Choice {
  std::vector<const char*> captions;
  std::vector<const char*> keys;
  std::map<std::string, std::string> becomes;
};

// Each undoes what the ones before it did, so that all ends as it began.
const std::vector<Choice> kChoices = {
    {{"Regole"}, {"alt+r"}, {{"rules", "1"}}},
    {{"Help"}, {"alt+h"}, {{"rules", "0"}, {"help", "1"}}},
    {{"Info"}, {"alt+i"}, {{"help", "0"}, {"info", "1"}}},
    {{"Suoni", "Fruscio delle carte", "No"},
     {"alt+s", "Right", "Return"},
     {{"info", "0"}, {"checks", "Bassa No Nessuna "}, {"rustle", "0"}}},
    {{"Suoni", "Fruscio delle carte", "Si"},
     {"alt+s", "Right", "Down", "Return"},
     {{"checks", "Bassa Si Nessuna "}, {"rustle", "1"}}},
    {{"Opzioni", "Velocità gioco", "Media"},
     {"alt+o", "Right", "Down", "Return"},
     {{"checks", "Media Si Nessuna "}}},
    {{"Opzioni", "Velocità gioco", "Alta"},
     {"alt+o", "Right", "Up", "Return"},
     {{"checks", "Alta Si Nessuna "}}},
    {{"Opzioni", "Velocità gioco", "Bassa"},
     {"alt+o", "Right", "Return"},
     {{"checks", "Bassa Si Nessuna "}}},
    {{"Musica", "Minuetto"}, {"alt+m", "Up", "Return"}, {{"checks", "Bassa Si Minuetto "}}},
    {{"Musica", "MODO SEQUENZIALE"},
     {"alt+m", "Down", "Return"},
     {{"checks", "Bassa Si MODO SEQUENZIALE Canone "}}},
    {{"Musica", "Nessuna"}, {"alt+m", "Return"}, {{"checks", "Bassa Si Nessuna "}}},
};

const std::vector<std::string> kOfTheWindow = {"replay", "continue", "names", "marked", "checks",
                                               "rustle", "opening",  "rules", "help",   "info",
                                               "dialog", "box",      "popup"};
const std::vector<std::string> kOfTheGame = {
    "seat",  "action", "drawn",  "dealer", "turned", "index",  "n",    "hand1", "hand2",
    "hand3", "hand4",  "melds1", "melds2", "melds3", "melds4", "pile", "top",   "stock",
    "round", "totals", "name1",  "name2",  "name3",  "name4",  "deck"};

class Entries : public PlayingSession, public ::testing::WithParamInterface<Moment> {
 protected:
  static bool stands_still(Moment moment) {
    return moment != Moment::deal && moment != Moment::computer_turn;
  }

  void put_tunes_there() {
    files::create_directory(folder / "music");
    const files::path tunes = files::path(TOMBRELLO).parent_path() / "music";
    for (const char* tune : {"Canone.mid", "Minuetto.mid"}) {
      files::copy_file(tunes / tune, folder / "music" / tune);
    }
  }

  void go_to(Moment moment) {
    auto dealer_is = [](int dealer) {
      return find_clock([=](const Fortune& f) { return f.dealer == dealer; });
    };
    switch (moment) {
      case Moment::opening:
        return start_quick();
      case Moment::draw:
      case Moment::first_card:
        start_quick({.clock = dealer_is(4)});
        dismiss_opening();
        if (moment == Moment::first_card) turn_up(1, 1);
        return;
      case Moment::deal:
        start_quick({.clock = dealer_is(4), .deal = 500});
        dismiss_opening();
        turn_up(1, 4);
        return wait_until("the first cards",
                          [](const View& v) { return v.numbers("hand2").size() == kHandCards; });
      case Moment::own_turn:
      case Moment::own_turn_by_keys:
        begin({.clock = dealer_is(4)});
        draw(kStock);
        return select({4, 9});
      case Moment::computer_turn:
        begin({.clock = dealer_is(1), .turns = 1000});
        return wait_for("seat", 2);
      case Moment::scoreboard:
        begin({.clock = clock_of_short_hand(), .turns = 5});
        return play_hand(false);
      case Moment::match_over:
        begin({.clock = clock_of_short_match(), .turns = 2});
        for (play_hand(false); view.number("continue") == 1; play_hand(false)) next_hand();
        return;
    }
  }

  void next_hand() {
    const int round = view.number("round");
    press_screen("Partita");
    press_screen("Continua");
    wait_for("round", round + 1);
    wait_for("pile", 1);
  }

  void go_on_from(Moment moment) {
    switch (moment) {
      case Moment::opening:
        return dismiss_opening();
      case Moment::draw:
        return turn_up(1, 4);
      case Moment::first_card:
        return turn_up(2, 4);
      case Moment::deal:
        return wait_for("pile", 1);
      case Moment::own_turn:
      case Moment::own_turn_by_keys:
        press_slot(1, 1);  // lowers the selected cards
        press_slot(1, 1);
        return wait_until("the discard", [](const View& v) { return v.number("seat") != 1; });
      case Moment::computer_turn:
        ASSERT_NE(view.number("seat"), 1) << "the choices took too long";
        wait_for("seat", next_seat(view.number("seat")));
        return;
      case Moment::scoreboard:
        return next_hand();
      case Moment::match_over:
        press(400, 300);
        return expect_still_running();
    }
  }

  std::map<std::string, std::string> told(Moment moment) const {
    std::map<std::string, std::string> all;
    for (const auto& key : kOfTheWindow) all[key] = view.text(key);
    if (!stands_still(moment)) return all;
    for (const auto& key : kOfTheGame) all[key] = view.text(key);
    return all;
  }

  // Only what is to become otherwise may do so.
  void expect_change(Moment moment, std::map<std::string, std::string> before,
                     const std::map<std::string, std::string>& becomes) {
    for (const auto& [key, value] : becomes) before[key] = value;
    comes_true([&](const View&) { return told(moment) == before; }, Milliseconds(5000));
    EXPECT_EQ(told(moment), before);
  }

  void choose(const Choice& choice, Moment moment) {
    SCOPED_TRACE(choice.captions.back());
    const auto before = told(moment);
    if (moment == Moment::own_turn_by_keys) {
      for (const char* each : choice.keys) key(each);
    } else {
      for (const char* caption : choice.captions) press_screen(caption);
    }
    expect_change(moment, before, choice.becomes);
  }

  // The window manager takes a moment to settle which window is in front.
  void answer(const char* button) {
    press_screen(button);
    comes_true([](const View&) { return false; }, Milliseconds(250));
  }

  void answer_no_to_esci(Moment moment) {
    const auto before = told(moment);
    moment == Moment::own_turn_by_keys ? key("alt+e") : press_screen("Esci");
    wait_until("the question",
               [](const View& v) { return v.text("box") == "Uscire da Tombrello?"; });
    answer("No");
    expect_change(moment, before, {});
  }

  // "Continua" is chosen at the end, when it is enabled: with it the game goes on.
  void try_first_menu(Moment moment) {
    const auto before = told(moment);
    const std::map<std::string, std::string> confirmed = {
        {"action", moment == Moment::opening ? "8" : "7"}};
    for (const auto& [entry, caption] : {std::pair{"replay", "Ripeti ultima mano"},
                                         {"continue", "Continua"},
                                         {"names", "Nomi dei giocatori"}}) {
      SCOPED_TRACE(caption);
      const bool enabled = view.number(entry) == 1;
      if (enabled && std::string(entry) == "continue") continue;
      press_screen("Partita");
      press_screen(caption);
      if (!enabled) {
        expect_change(moment, before, {{"popup", "1"}});
        key("Escape");
        key("Escape");
        expect_change(moment, before, {});
      } else if (std::string(entry) == "replay") {
        expect_change(moment, before, {{"box", "Nessuna mano è stata ancora giocata"}});
        answer("OK");
        expect_change(moment, before, {});
      } else {
        expect_change(moment, before, {{"dialog", "1"}});
        key("Return");
        expect_change(moment, before, confirmed);
      }
    }
  }
};

TEST_P(Entries, DoWhatTheySayAndNothingElse) {
  const Moment moment = GetParam();
  put_tunes_there();
  go_to(moment);
  move(20, 595);
  const bool still = stands_still(moment);
  const Shot before = still ? settled_shot() : Shot();
  const std::string settings = file("config.zvq");
  for (const Choice& choice : kChoices) choose(choice, moment);
  if (!settings.empty() && still) {
    EXPECT_EQ(file("config.zvq"), settings);
  }
  answer_no_to_esci(moment);
  try_first_menu(moment);
  move(20, 595);
  if (still) {
    EXPECT_EQ(settled_shot(), before);
  }
  go_on_from(moment);
  close_by_frame();
  expect_quiet_end();
}

std::string name_of(const ::testing::TestParamInfo<Moment>& info) {
  constexpr const char* kNames[] = {"Opening", "Draw",         "FirstCard",  "Deal",     "OwnTurn",
                                    "ByKeys",  "ComputerTurn", "Scoreboard", "MatchOver"};
  return kNames[static_cast<int>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(Moments, Entries,
                         ::testing::Values(Moment::opening, Moment::draw, Moment::first_card,
                                           Moment::deal, Moment::own_turn, Moment::own_turn_by_keys,
                                           Moment::computer_turn, Moment::scoreboard,
                                           Moment::match_over),
                         name_of);

}  // namespace
}  // namespace tombrello
