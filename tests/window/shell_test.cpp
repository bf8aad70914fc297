#include <algorithm>
#include <random>

#include "player.h"

namespace tombrello {
namespace {

using Shell = PlayingSession;

TEST_F(Shell, NamesAreTypedPastedShownAndKept) {
  start_quick();
  dismiss_opening();
  key("alt+p");
  key("n");
  wait_for("dialog", 1);
  const auto fill = [&](int seat, const std::string& name, const std::function<void()>& enter) {
    press(130, 40 + static_cast<float>(seat - 1) * 15);
    key("ctrl+a");
    enter();
    wait_until(name, [&](const View& v) { return v.text("name" + std::to_string(seat)) == name; });
  };
  fill(1, "OTTOLET", [&] { xdo({"type", "--delay", "4", "otto,le\"ttere"}); });
  fill(2, "STRAßE", [&] { paste("straße"); });
  fill(3, "🂡 LEO", [&] { paste("🂡 leo"); });
  fill(4, "AAAAAAA", [&] { paste(std::string(5000, 'a') + "\n\t" + std::string(5000, 'b')); });
  key("Return");
  wait_until("names on the table", [](const View& v) {
    return v.number("dialog") == 0 && v.shows("|OTTOLET|") && v.shows("|S|T|R|A|ß|E|");
  });
  EXPECT_EQ(file("Players"), "OTTOLET\r\nSTRAßE\r\n🂡 LEO\r\nAAAAAAA\r\n");
}

// Where no file may grow a save would end the process, if it weren't told otherwise.
TEST_F(Shell, AFullDiskIsToldAndTheGameGoesOn) {
  start_quick({}, TOMBRELLO_QUICK, {"sh", "-c", "ulimit -f 0; exec \"$0\" \"$@\""});
  keys({"alt+s", "Right", "Return"});
  wait_until("a word of it",
             [](const View& v) { return v.text("chronicle").find("spazio") != std::string::npos; });
  close_by_frame();
  expect_quiet_end();
}

/// What stands in the window looks the same after many sizes, and when it was minimised; and at
/// 800 by 600 as when it is opened there.
class Sizes : public PlayingSession {
 protected:
  Shot parked_shot() {
    move(20, 595);
    return settled_shot();
  }
  void expect_survival(const std::function<void()>& open, const std::function<void()>& close) {
    open();
    const Shot full = parked_shot();
    maximise_or_not();
    wait_until("a smaller window", [&](const View& v) { return v.number("width") < full.width; });
    for (const auto& [width, height] : {std::pair{400, 300}, {1000, 420}, {401, 733}}) {
      resize(width, height);
    }
    xdo({"windowsize", window, "200", "150"});
    wait_for("width", 400);
    resize(800, 600);
    const Shot at_800 = settled_shot();
    xdo({"windowminimize", window});
    wait_for("minimised", 1);
    xdo({"windowactivate", window});
    wait_for("minimised", 0);
    EXPECT_EQ(settled_shot(), at_800);
    close();
    open();
    EXPECT_EQ(parked_shot(), at_800) << "painted for this size, not stretched from another";
    maximise_or_not();
    wait_for("width", full.width);
    EXPECT_EQ(parked_shot(), full);
    close();
  }
};

TEST_F(Sizes, ThePictureSurvivesThemAndMinimising) {
  start_quick({.clock = kSeat4Deals});
  dismiss_opening();
  expect_survival(
      [&] {
        press_screen("Partita");
        press_screen("Nomi dei giocatori");
        wait_for("dialog", 1);
        press(600, 560);  // takes the keyboard, and its blinking mark, from the field
      },
      [&] {
        press(105, 120);  // its bar, where it stands now
        wait_for("dialog", 0);
        wait_for("action", 7);
      });
  turn_up(1, 4);
  wait_for("pile", 1);
  draw();
  expect_survival(
      [&] {
        select({4, 9});
      },
      [&] {
        press_slot(14, 1);
        wait_until("both down", [](const View& v) { return v.hand().at(3) < kSelected; });
      });
  for (const auto& [panel, name] :
       {std::pair{"Regole", "rules"}, {"Help", "help"}, {"Info", "info"}}) {
    SCOPED_TRACE(panel);
    const auto turn = [&, panel = panel, name = name] {
      const int shown = view.number(name);
      press_screen(panel);
      wait_for(name, 1 - shown);
    };
    expect_survival(turn, turn);
  }
}

TEST_F(Shell, TheLastHandCanBeDealtAgain) {
  begin({.clock = kSeat4Deals});
  const auto dealt = view.numbers("deck");
  std::string settings = " 1 \r\nTU\r\nOVEST\r\nNORD\r\nEST\r\n 1 \r\n 0 \r\n 100 \r\n";
  for (const int card : dealt) settings += ' ' + std::to_string(card) + " \r\n";
  settings += ' ' + view.text("dealer") + " \r\n";
  wait_until("the file", [&](const View&) { return !file("config.zvq").empty(); });
  EXPECT_EQ(file("config.zvq"), settings) << "on every system";
  const std::string hands = view.text("hand1") + view.text("hand2") + view.text("hand3");
  end(game);

  start_quick({.clock = 777, .turns = 5});
  press_screen("Partita");
  press_screen("Ripeti ultima mano");
  press_screen("OK");
  wait_for("front", 1);
  press(400, 300);
  wait_for("pile", 1);
  EXPECT_EQ(view.numbers("deck"), dealt);
  EXPECT_EQ(view.text("hand1") + view.text("hand2") + view.text("hand3"), hands);
  end(game);
}

// Whatever is pressed, typed or chosen, the game goes on and can be left.
TEST_F(Shell, ARandomWalkUpsetsNothing) {
  start_quick({.clock = kSeat1Deals, .turns = 10});
  std::mt19937 dice(static_cast<unsigned>(asked_for("TOMBRELLO_WALK_SEED", 20240229)));
  const int steps = asked_for("TOMBRELLO_WALK_STEPS", 300);
  auto below = [&](int n) { return static_cast<int>(dice() % static_cast<unsigned>(n)); };
  const std::vector<std::string> keys = {"alt+p", "alt+o", "alt+s",  "alt+m",  "alt+r",
                                         "alt+i", "alt+h", "Return", "Escape", "Down",
                                         "Right", "n",     "Tab",    "space",  "alt+F10"};
  const std::vector<std::pair<float, float>> places = {{400, 300}, {370, 300}, {430, 300},
                                                       {300, 440}, {310, 190}, {105, 120}};
  for (int step = 0; step < steps; ++step) {
    const int kind = below(20);
    if (kind < 9) {
      press(static_cast<float>(below(801)), static_cast<float>(below(601)), below(2) == 0 ? 1 : 3);
    } else if (kind < 14) {
      const auto [x, y] = places[static_cast<std::size_t>(below(static_cast<int>(places.size())))];
      press(x, y);
      xdo({"click", "--repeat", "2", "--delay", "10", "1"});  // impatiently
    } else if (kind < 19) {
      key(keys[static_cast<std::size_t>(below(static_cast<int>(keys.size())))]);
    } else {
      xdo({"windowsize", window, std::to_string(300 + below(700)),
           std::to_string(250 + below(500))});
    }
    comes_true([](const View&) { return true; }, {});  // the state is sound
  }
  EXPECT_GT(view.number("index"), 0);
  xdo({"windowactivate", window});
  clear_the_way();
  close_by_frame();
  expect_quiet_end();
}

}  // namespace
}  // namespace tombrello
