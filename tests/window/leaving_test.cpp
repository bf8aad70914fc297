// Leaving the game, from each of its states and by each way out. One way for each state, another
// with each seed (TOMBRELLO_LEAVING_SEED); where TOMBRELLO_LEAVING is set every way for every
// state, those that take long to reach too.

#include <signal.h>

#include <algorithm>

#include "player.h"
#include "seam/window.h"

namespace tombrello {
namespace {

enum Way {
  by_entry,
  by_key,
  by_frame,
  by_sigterm,
  by_sigint,
  by_sighup,
  under_a_stopped_screen,
  by_a_lost_screen,
  kWays
};

// Under wine a signal is the end of the session, and nobody but wine has to do with the screen.
const int kPossibleWays = kWindows == nullptr ? kWays : by_sigint;

const bool every_way = std::getenv("TOMBRELLO_LEAVING") != nullptr;

class LeavingFrom : public PlayingSession, public ::testing::WithParamInterface<int> {
 public:
  struct State {
    const char* name;
    std::function<void(LeavingFrom&)> go_there;
  };
  static const std::vector<State>& states();

 protected:
  void choose(const Words& captions, const char* key) {
    draw_for_dealer(0);
    for (const auto& caption : captions) press_screen(caption);
    wait_until(key, [=](const View& v) { return !v.text(key).empty() && v.text(key) != "0"; });
  }

  void leave_by(int way) {
    if (way <= by_frame) clear_the_way();
    if (way == by_entry) press_screen("Esci");
    if (way == by_key) key("alt+e");
    if (way == by_frame) close_by_frame();
    if (way == by_entry || way == by_key) {
      wait_until("the question",
                 [](const View& v) { return v.text("box") == "Uscire da Tombrello?"; });
      way == by_entry ? press_screen("Sì") : key("Return");
    }
    if (way == by_sigterm) send(SIGTERM);
    if (way == by_sigint) send(SIGINT);
    if (way == by_sighup) send(SIGHUP);
    if (way == under_a_stopped_screen) {
      signal_screen(SIGSTOP);
      send(SIGTERM);
    }
    if (way == by_a_lost_screen) signal_screen(SIGKILL);
  }

  // Nobody is told any more that the game has ended.
  void expect_end_without_screen() {
    ASSERT_TRUE(game->waitForFinished(60000)) << "it goes on";
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

// Each by the way that follows the one before: their order has boxes and a menu left by a signal.
// The last two take long to reach.
const std::vector<LeavingFrom::State>& LeavingFrom::states() {
  static const std::vector<State> all = {
      {"TheOpening", [](LeavingFrom& t) { t.start_quick(); }},
      {"TheDraw", [](LeavingFrom& t) { t.draw_for_dealer(0); }},
      {"AmongTheCardsOfTheDraw", [](LeavingFrom& t) { t.draw_for_dealer(2); }},
      {"TheTieBox",
       [](LeavingFrom& t) {
         t.draw_for_dealer(4, {.clock = kTie});
         t.wait_until("the box", [](const View& v) { return v.text("box") == "Ripeti, prego"; });
       }},
      {"AfterTheDraw",
       [](LeavingFrom& t) { t.draw_for_dealer(4, {.clock = kSeat1Deals, .deal = 10000}); }},
      {"TheDeal",
       [](LeavingFrom& t) {
         t.draw_for_dealer(4, {.clock = kSeat1Deals, .deal = 500});
         t.wait_until("the first cards", [](const View& v) {
           const auto cards = v.numbers("hand2");
           return cards.size() > 2 && cards[1] != 0;
         });
       }},
      {"TheOwnTurn", [](LeavingFrom& t) { t.begin({.clock = kSeat4Deals}); }},
      {"TheCardDrawn",
       [](LeavingFrom& t) {
         t.begin({.clock = kSeat4Deals});
         t.draw();
       }},
      {"CardsSelected",
       [](LeavingFrom& t) {
         t.begin({.clock = kSeat4Deals});
         t.draw();
         t.select({1, 2});
       }},
      {"TheOwnTurnByKeys",
       [](LeavingFrom& t) {
         t.begin({.clock = kSeat4Deals});
         t.keys({"Tab", "Return", "Tab", "Right", "space"});
       }},
      {"AComputerTurn",
       [](LeavingFrom& t) {
         t.begin({.clock = kSeat1Deals, .turns = 10000});
         t.wait_for("pointer", static_cast<int>(PointerShape::hourglass));
       }},
      {"TheAnswerToARepeat",
       [](LeavingFrom& t) {
         t.choose({"Partita", "Ripeti ultima mano"}, "box");
       }},
      {"OpenHands",
       [](LeavingFrom& t) {
         t.begin({.clock = kShortHand, .turns = 5, .rare = 2000});
         t.play_until([](const View& v) { return v.text("chronicle").starts_with("Mano finita"); });
       }},
      {"TheScoreboard",
       [](LeavingFrom& t) {
         t.begin({.clock = kShortHand, .turns = 5});
         t.play_hand();
       }},
      {"TheQuestion", [](LeavingFrom& t) { t.choose({"Esci"}, "box"); }},
      {"TheRules", [](LeavingFrom& t) { t.choose({"Regole"}, "rules"); }},
      {"TheHelp", [](LeavingFrom& t) { t.choose({"Help"}, "help"); }},
      {"TheInfo", [](LeavingFrom& t) { t.choose({"Info"}, "info"); }},
      {"TheNames",
       [](LeavingFrom& t) {
         t.choose({"Partita", "Nomi dei giocatori"}, "dialog");
       }},
      {"AMenu",
       [](LeavingFrom& t) {
         t.choose({"Opzioni", "Velocità gioco"}, "popup");
       }},
      {"ATune",
       [](LeavingFrom& t) {
         t.choose({"Musica", "Minuetto"}, "checks");
         t.wait_until("the tune",
                      [](const View& v) { return v.text("checks").ends_with("Minuetto "); });
       }},
      {"TheReshuffle",
       [](LeavingFrom& t) {
         t.begin({.clock = kReshuffle, .turns = 5, .rare = 2000});
         t.play_until([](const View& v) { return v.shows("Rimescolo"); });
       }},
      {"TheMatchOver", [](LeavingFrom& t) {
         t.start_quick({.clock = kShortMatch, .turns = 2});
         t.play_match_by_keys();
       }}};
  return all;
}

TEST_P(LeavingFrom, EndsTheGameAtOnce) {
  const int given = GetParam() + asked_for("TOMBRELLO_LEAVING_SEED", 0);
  for (int way = 0; way < kPossibleWays; ++way) {
    if (!every_way && way != given % kPossibleWays) continue;
    SCOPED_TRACE(way);
    states()[static_cast<std::size_t>(GetParam())].go_there(*this);
    leave_by(way);
    way == by_a_lost_screen ? expect_end_without_screen() : expect_quiet_end();
    if (way == under_a_stopped_screen) start_screen();
    expect_whole_settings();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Every, LeavingFrom,
    ::testing::Range(0, static_cast<int>(LeavingFrom::states().size()) - (every_way ? 0 : 2)),
    [](const auto& by) { return LeavingFrom::states()[static_cast<std::size_t>(by.param)].name; });

}  // namespace
}  // namespace tombrello
