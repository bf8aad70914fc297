#include <algorithm>
#include <random>

#include "player.h"

namespace tombrello {
namespace {

using Shell = PlayingSession;

TEST_F(Shell, NamesAreTypedPastedShownAndKept) {
  start_quick({.clock = kShortHand, .turns = 5});
  dismiss_opening();
  const auto fill = [&](int seat, const std::string& name, const std::function<void()>& enter) {
    press(130, 40 + static_cast<float>(seat - 1) * 15);
    key("ctrl+a");
    enter();
    wait_until(name, [&](const View& v) { return v.text("name" + std::to_string(seat)) == name; });
  };
  const auto prints = [&](const std::string& text) {
    return comes_true([&](const View& v) { return v.text("texts").find(text) != text.npos; },
                      Milliseconds(5000));
  };
  key("alt+p");
  key("n");
  wait_for("dialog", 1);
  fill(1, "OTTOLET", [&] { type("otto,le\"ttere"); });
  fill(2, "STRAßE", [&] { paste("straße"); });
  fill(3, "🂡 LEO", [&] { paste("🂡 leo"); });
  fill(4, "AAAAAAA", [&] { paste(std::string(5000, 'a') + "\n\t" + std::string(5000, 'b')); });
  key("Return");
  wait_for("dialog", 0);
  EXPECT_EQ(file("Players"), "OTTOLET\r\nSTRAßE\r\n🂡 LEO\r\nAAAAAAA\r\n");
  EXPECT_TRUE(prints("|OTTOLET|"));
  EXPECT_TRUE(prints("|S|T|R|A|ß|E|"));

  const auto open_again = [&] {
    wait_for("action", 7);
    press_screen("Partita");
    press_screen("Nomi dei giocatori");
    wait_for("dialog", 1);
  };
  open_again();
  fill(1, "ZOË B", [&] { paste(" zoë, \"b\" "); });
  press(105, 120);  // the bar
  wait_for("dialog", 0);
  EXPECT_EQ(file("Players").substr(0, 8), "ZOË B\r\n");
  open_again();
  fill(4, "IDA", [&] { type("ida"); });
  press(400, 300);  // the first card closes it
  wait_for("index", 2);
  EXPECT_EQ(view.number("dialog"), 0);
  EXPECT_EQ(view.number("names"), 0);
  turn_up(2, 4);
  wait_for("pile", 1);
  play_hand(false);
  EXPECT_TRUE(prints("Game    ZOË B-🂡 LEO|STRAßE-IDA|"));
  EXPECT_NE(file("config.zvq").find("\r\nZOË B\r\nSTRAßE\r\n🂡 LEO\r\nIDA\r\n"), std::string::npos);
}

/// What stands in the window looks the same after many sizes, and when it was minimised; and at
/// 800 by 600 as when it is opened there.
class Sizes : public PlayingSession {
 protected:
  void expect_survival(const std::function<void()>& open, const std::function<void()>& close) {
    open();
    move(20, 595);
    const Shot full = settled_shot();
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
    move(20, 595);
    EXPECT_EQ(settled_shot(), at_800) << "painted for this size, not stretched from another";
    maximise_or_not();
    wait_for("width", full.width);
    move(20, 595);
    EXPECT_EQ(settled_shot(), full);
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
  draw(kStock);
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
    expect_survival(
        [&, panel = panel, name = name] {
          press_screen(panel);
          wait_for(name, 1);
        },
        [&, panel = panel, name = name] {
          press_screen(panel);
          wait_for(name, 0);
        });
  }
}

TEST_F(Shell, TheLastHandCanBeDealtAgain) {
  begin({.clock = kSeat4Deals});
  const auto dealt = view.numbers("deck");
  wait_until("the file", [&](const View&) { return !file("config.zvq").empty(); });
  const std::string kept = file("config.zvq");
  std::string settings = " 1 \r\nTU\r\nOVEST\r\nNORD\r\nEST\r\n 1 \r\n 0 \r\n 100 \r\n";
  for (const int card : dealt) settings += ' ' + std::to_string(card) + " \r\n";
  EXPECT_EQ(kept, settings + ' ' + view.text("dealer") + " \r\n") << "on every system";
  const std::string hands = view.text("hand1") + view.text("hand2") + view.text("hand3");
  game->kill();
  game->waitForFinished(5000);

  start_quick({.clock = 777, .turns = 5});
  press_screen("Partita");
  press_screen("Ripeti ultima mano");
  wait_until("the notice", [](const View& v) {
    return v.text("box") ==
           "Nel punteggio finale saranno riportati i risultati della mano ripetuta";
  });
  press_screen("OK");
  wait_for("marked", 1);
  press(400, 300);
  wait_for("pile", 1);
  EXPECT_EQ(view.numbers("deck"), dealt);
  EXPECT_EQ(view.number("dealer"), 4);
  EXPECT_EQ(view.text("hand1") + view.text("hand2") + view.text("hand3"), hands);
  EXPECT_EQ(view.number("round"), 0);

  play_hand(false);
  EXPECT_EQ(file("config.zvq"), kept) << "the same deck and dealer can be dealt once more";
  ASSERT_EQ(view.number("continue"), 1);
  press_screen("Partita");
  press_screen("Continua");
  wait_for("round", 1);
  wait_for("pile", 1);
  EXPECT_EQ(view.number("marked"), 0);
  EXPECT_EQ(view.number("dealer"), 1);
  EXPECT_NE(view.numbers("deck"), dealt);
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
    } else if (kind < 19) {
      key(keys[static_cast<std::size_t>(below(static_cast<int>(keys.size())))]);
    } else {
      xdo({"windowsize", window, std::to_string(300 + below(700)),
           std::to_string(250 + below(500))});
    }
    comes_true([](const View&) { return true; }, Milliseconds(0));
  }
  EXPECT_GT(view.number("index"), 0);
  for (int escapes = 0; escapes < 3; ++escapes) key("Escape");
  comes_true([](const View& v) { return v.text("box").empty() && v.number("popup") == 0; },
             Milliseconds(2000));
  expect_still_running();
  xdo({"windowactivate", window});
  close_by_frame();
  expect_quiet_end();
}

}  // namespace
}  // namespace tombrello
