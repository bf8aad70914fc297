// Leaving the game, from each of its states and by each way out. One way for each state, another
// with each seed (TOMBRELLO_LEAVING_SEED); where TOMBRELLO_LEAVING is set every way for every
// state, those that take long to reach too.

#include <signal.h>

#include <algorithm>

#include "player.h"
#include "seam/window.h"

namespace tombrello {
namespace {

const bool every_way = std::getenv("TOMBRELLO_LEAVING") != nullptr;

class LeavingFrom;

struct Place {
  const char* name;
  void (LeavingFrom::*go_there)();
  std::vector<const char*> captions = {};  ///< to be chosen
  const char* key = "";                    ///< which tells that it is there
};
void PrintTo(const Place& place, std::ostream* out) {
  *out << place.name;
}

class LeavingFrom : public PlayingSession, public ::testing::WithParamInterface<Place> {
 public:
  void opening() { start_quick(); }
  void tie_box() {
    draw_for_dealer(4, {.clock = kTie});
    wait_for_any("box");
  }
  void after_the_draw() { draw_for_dealer(4, {.clock = kSeat1Deals, .deal = 10000}); }
  void deal() {
    draw_for_dealer(4, {.clock = kSeat1Deals, .deal = 500});
    wait_until("the first cards", [](const View& v) {
      const auto cards = v.numbers("hand2");
      return cards.size() > 2 && cards[1] != 0;
    });
  }
  void before_the_draw() { draw_for_dealer(0); }
  void among_the_draw() { draw_for_dealer(2); }
  void own_turn() { begin({.clock = kSeat4Deals, .turns = 1000}); }
  void card_drawn() {
    own_turn();
    draw(kStock);
  }
  void cards_selected() {
    card_drawn();
    select({1, 2});
  }
  void own_turn_by_keys() {
    card_drawn();
    for (const char* each : {"Tab", "Right", "space"}) key(each);
  }
  void computer_turn() {
    begin({.clock = kSeat1Deals, .turns = 10000});
    wait_for("pointer", static_cast<int>(PointerShape::hourglass));
  }
  void reshuffle() {
    begin({.clock = kReshuffle, .turns = 5, .rare = 2000});
    play_until([](const View& v) { return v.text("texts").find("Rimescolo") != v.text("").npos; });
  }
  void open_hands() {
    begin({.clock = kShortHand, .turns = 5, .rare = 2000});
    play_until([](const View& v) { return v.text("chronicle").starts_with("Mano finita"); });
  }
  void scoreboard() {
    begin({.clock = kShortHand, .turns = 5});
    play_hand(false);
  }
  void match_over() {
    start_quick({.clock = kShortMatch, .turns = 2});
    const auto over = [](const View& v) {
      return v.text("chronicle").starts_with("Avete") || v.text("chronicle").starts_with("La part");
    };
    while (!over(view)) {
      xdo({"key", "--delay", "10", "Tab", "Return"});
      comes_true(over, Milliseconds(30));
    }
  }
  void what_is_chosen() {
    choose(GetParam().captions);
    wait_for_any(GetParam().key);
  }
  void tune() {
    std::filesystem::create_directory(folder / "music");
    const auto tunes = std::filesystem::path(TOMBRELLO).parent_path() / "music";
    std::filesystem::copy_file(tunes / "Minuetto.mid", folder / "music" / "Minuetto.mid",
                               std::filesystem::copy_options::overwrite_existing);
    choose({"Musica", "Minuetto"});
    wait_until("the tune", [](const View& v) { return v.text("checks").ends_with("Minuetto "); });
  }

 protected:
  void draw_for_dealer(int cards, Quick quick = {}) {
    start_quick(quick);
    dismiss_opening();
    turn_up(1, cards);
  }
  void choose(const std::vector<const char*>& captions) {
    draw_for_dealer(0);
    for (const char* caption : captions) press_screen(caption);
  }
  void wait_for_any(const char* key) {
    wait_until(key, [=](const View& v) { return !v.text(key).empty() && v.text(key) != "0"; });
  }

  void play_until(const std::function<bool(const View&)>& there) {
    while (!there(view)) {
      const auto goes_on = [&](const View& v) {
        return there(v) ||
               (v.number("seat") == 1 && v.number("drawn") == 0 && v.number("pile") > 0);
      };
      wait_until("a turn", goes_on, Milliseconds(60000));
      if (there(view)) return;
      draw(kStock);
      press_slot(view.cards(1), 1);
      wait_until("the discard", [&](const View& v) { return there(v) || v.number("seat") != 1; });
    }
  }

  // What lies over the game takes keys and the frame's close first.
  void clear_the_way() {
    for (int tries = 0; tries < 5; ++tries) {
      if (comes_true([](const View& v) { return v.text("box").empty() && v.number("popup") == 0; },
                     Milliseconds(300))) {
        return;
      }
      key("Escape");
    }
  }

  void answer_the_question() {
    wait_until("the question",
               [](const View& v) { return v.text("box") == "Uscire da Tombrello?"; });
    key("Return");
  }

  void leave_by(int way) {
    if (way < 3) clear_the_way();
    switch (way) {
      case 0:
        press_screen("Esci");
        return answer_the_question();
      case 1:
        key("alt+e");
        return answer_the_question();
      case 2:
        return close_by_frame();
      case 3:
        return send(SIGTERM);
      case 4:
        return send(asked_for("TOMBRELLO_LEAVING_SEED", 0) % 2 == 0 ? SIGINT : SIGHUP);
      default:
        return lose_screen();
    }
  }

  // Nobody is told any more that the game has ended.
  void expect_end_without_screen() {
    ASSERT_TRUE(game->waitForFinished(5000)) << "it goes on";
    EXPECT_EQ(game->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(game->exitCode(), 1);
    const std::string said = game->readAllStandardError().toStdString();
    // One line, or the X library's own where a request was under way.
    const auto lines = std::count(said.begin(), said.end(), '\n');
    EXPECT_TRUE(lines == 1 || said.find("XIO:") != said.npos) << said;
  }

  // The deal is kept whole, or was never kept.
  void expect_whole_settings() {
    const std::string kept = file("config.zvq");
    const auto lines = std::count(kept.begin(), kept.end(), '\n');
    EXPECT_TRUE(lines == 0 || (lines == 8 + kCards + 1 && kept.ends_with("\r\n"))) << kept;
  }
};

constexpr int kLosesScreen = 5;
// Under wine nobody but wine has a connection to the screen.
const int kWays = std::getenv("TOMBRELLO_WINDOWS") == nullptr ? kLosesScreen + 1 : kLosesScreen;

TEST_P(LeavingFrom, EndsTheGameAtOnce) {
  const int seed = asked_for("TOMBRELLO_LEAVING_SEED", 0) +
                   static_cast<int>(std::hash<std::string>()(GetParam().name) % 1000);
  for (int way = 0; way < kWays; ++way) {
    if (!every_way && way != seed % kWays) continue;
    SCOPED_TRACE(way);
    (this->*GetParam().go_there)();
    leave_by(way);
    if (way == kLosesScreen) {
      expect_end_without_screen();
    } else {
      expect_quiet_end();
    }
    expect_whole_settings();
  }
}

std::vector<Place> places() {
  std::vector<Place> all = {
      {"TheOpening", &LeavingFrom::opening},
      {"TheDraw", &LeavingFrom::before_the_draw},
      {"AmongTheCardsOfTheDraw", &LeavingFrom::among_the_draw},
      {"AfterTheDraw", &LeavingFrom::after_the_draw},
      {"TheTieBox", &LeavingFrom::tie_box},
      {"TheDeal", &LeavingFrom::deal},
      {"TheOwnTurn", &LeavingFrom::own_turn},
      {"TheCardDrawn", &LeavingFrom::card_drawn},
      {"CardsSelected", &LeavingFrom::cards_selected},
      {"TheOwnTurnByKeys", &LeavingFrom::own_turn_by_keys},
      {"AComputerTurn", &LeavingFrom::computer_turn},
      {"OpenHands", &LeavingFrom::open_hands},
      {"TheScoreboard", &LeavingFrom::scoreboard},
      {"TheRules", &LeavingFrom::what_is_chosen, {"Regole"}, "rules"},
      {"TheHelp", &LeavingFrom::what_is_chosen, {"Help"}, "help"},
      {"TheInfo", &LeavingFrom::what_is_chosen, {"Info"}, "info"},
      {"TheNames", &LeavingFrom::what_is_chosen, {"Partita", "Nomi dei giocatori"}, "dialog"},
      {"TheAnswerToARepeat",
       &LeavingFrom::what_is_chosen,
       {"Partita", "Ripeti ultima mano"},
       "box"},
      {"TheQuestion", &LeavingFrom::what_is_chosen, {"Esci"}, "box"},
      {"AMenu", &LeavingFrom::what_is_chosen, {"Opzioni", "Velocità gioco"}, "popup"},
      {"ATune", &LeavingFrom::tune},
  };
  if (every_way) {  // and those that take long to reach
    all.push_back({"TheReshuffle", &LeavingFrom::reshuffle});
    all.push_back({"TheMatchOver", &LeavingFrom::match_over});
  }
  return all;
}

std::string name_of(const ::testing::TestParamInfo<Place>& info) {
  return info.param.name;
}
INSTANTIATE_TEST_SUITE_P(Every, LeavingFrom, ::testing::ValuesIn(places()), name_of);

}  // namespace
}  // namespace tombrello
