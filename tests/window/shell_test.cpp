#include <algorithm>
#include <random>

#include "player.h"

namespace tombrello {
namespace {

using Shell = PlayingSession;

bool is_dealer_found(const Fortune& fortune) {
  return fortune.dealer != 0;
}

TEST_F(Shell, PanelsShowOneAtATimeAndGoAtAPress) {
  start_quick();
  dismiss_opening();
  const Shot table = settled_shot();
  auto shows = [&](int rules, int help, int info) {
    wait_until("the panels", [=](const View& v) {
      return v.number("rules") == rules && v.number("help") == help && v.number("info") == info;
    });
  };
  key("alt+r");
  shows(1, 0, 0);
  EXPECT_NE(settled_shot(), table);
  key("alt+h");
  shows(0, 1, 0);
  press_screen("Info");
  shows(0, 0, 1);
  key("alt+i");
  shows(0, 0, 0);
  press_screen("Regole");
  shows(1, 0, 0);
  press(100, 100);  // on the panel
  shows(0, 0, 0);
  press_screen("Help");
  shows(0, 1, 0);
  press(600, 500, 1);  // beside it
  shows(0, 0, 0);
  EXPECT_EQ(view.number("index"), 1);
  move(400, 590);
  EXPECT_EQ(settled_shot(), table) << "what they covered is seen again";
}

TEST_F(Shell, OptionsAreChosenInTheMenus) {
  start_quick();
  dismiss_opening();
  EXPECT_EQ(view.number("speed"), 1);
  for (const auto& [caption, speed] : {std::pair{"Alta", 3}, {"Media", 2}, {"Bassa", 1}}) {
    press_screen("Opzioni");
    press_screen("Velocità gioco");
    press_screen(caption);
    wait_for("speed", speed);
  }
  EXPECT_EQ(file("config.zvq"), "") << "the pace lasts for the run only";
  press_screen("Suoni");
  press_screen("Fruscio delle carte");
  press_screen("No");
  wait_for("rustle", 0);
  EXPECT_EQ(file("config.zvq").substr(0, 5), " 1 \r\n");
  EXPECT_NE(file("config.zvq").find("EST\r\n 0 \r\n"), std::string::npos);
  press_screen("Suoni");
  press_screen("Fruscio delle carte");
  press_screen("Si");
  wait_for("rustle", 1);
  for (const char* tune : {"MODO SEQUENZIALE", "Nessuna"}) {
    press_screen("Musica");
    press_screen(tune);
    wait_for("popup", 0);
  }
  press_screen("Partita");
  press_screen("Ripeti ultima mano");
  wait_until("the answer",
             [](const View& v) { return v.text("box") == "Nessuna mano è stata ancora giocata"; });
  key("Return");
  wait_until("no box", [](const View& v) { return v.text("box").empty(); });
  EXPECT_EQ(view.number("marked"), 0);
  press_screen("Partita");
  press_screen("Continua");  // disabled
  key("Escape");
  key("Escape");
  wait_for("popup", 0);
  press(400, 300);
  wait_for("index", 2);
}

TEST_F(Shell, NamesAreTypedShownAndKept) {
  start_quick({.clock = find_clock(is_dealer_found)});
  dismiss_opening();
  const Shot before = settled_shot();
  auto fill = [&](int field, const std::string& typed, bool pasted) {
    press(130, 40 + static_cast<float>(field - 1) * 15);
    key("ctrl+a");
    pasted ? paste(typed) : type(typed);
  };
  auto expect_name = [&](int seat, const std::string& name) {
    wait_until(name, [&](const View& v) { return v.text("name" + std::to_string(seat)) == name; });
  };
  key("alt+p");
  key("n");
  wait_for("dialog", 1);
  fill(1, "otto,le\"ttere", false);
  expect_name(1, "OTTOLET");
  fill(2, "perché", true);
  expect_name(2, "PERCHÉ");
  fill(3, std::string(5000, 'a') + "\n\t" + std::string(5000, 'b'), true);
  expect_name(3, "AAAAAAA");
  fill(4, " x, \"y\" ", true);
  key("Return");
  wait_for("dialog", 0);
  wait_until("a name without outer blanks", [](const View& v) {
    const std::string name = v.text("name4");
    return !name.empty() && name.front() != ' ' && name.back() != ' ' &&
           name.find_first_of(",\"") == std::string::npos;
  });
  EXPECT_EQ(file("Players"), "OTTOLET\r\nPERCHÉ\r\nAAAAAAA\r\n" + view.text("name4") + "\r\n");
  wait_for("action", 7);
  const Shot named = settled_shot();
  EXPECT_NE(named, before);

  press_screen("Partita");
  press_screen("Nomi dei giocatori");
  wait_for("dialog", 1);
  fill(1, "anna", false);
  expect_name(1, "ANNA");
  press(105, 120);  // the bar
  wait_for("dialog", 0);
  EXPECT_EQ(file("Players").substr(0, 6), "ANNA\r\n");
  wait_for("action", 7);

  press_screen("Partita");
  press_screen("Nomi dei giocatori");
  wait_for("dialog", 1);
  press(400, 300);  // the first card closes it
  wait_for("index", 2);
  EXPECT_EQ(view.number("dialog"), 0);
  EXPECT_EQ(view.number("names"), 0);
  EXPECT_EQ(view.text("name1"), "ANNA");
}

TEST_F(Shell, ThePictureSurvivesSizesAndMinimising) {
  begin({.clock = find_clock([](const Fortune& f) { return f.dealer == 4; })});
  draw(kStock);
  select({4, 9});
  move(20, 595);
  const Shot full = settled_shot();
  maximise_or_not();
  wait_until("a smaller window", [&](const View& v) { return v.number("width") < full.width; });
  resize(800, 600);
  const Shot at_800 = settled_shot();
  for (const auto& [width, height] : {std::pair{400, 300}, {1000, 420}, {401, 733}, {517, 389}}) {
    resize(width, height);
  }
  xdo({"windowsize", window, "200", "150"});
  wait_for("width", 400);
  resize(800, 600);
  EXPECT_EQ(settled_shot(), at_800) << "painted for this size, not stretched from another";
  xdo({"windowminimize", window});
  wait_for("minimised", 1);
  xdo({"windowactivate", window});
  wait_for("minimised", 0);
  EXPECT_EQ(settled_shot(), at_800);
  maximise_or_not();
  wait_for("width", full.width);
  move(20, 595);
  EXPECT_EQ(settled_shot(), full);
  press_slot(14, 1);
  wait_until("the raised cards down", [](const View& v) { return v.hand().at(3) < kSelected; });
}

TEST_F(Shell, TheLastHandCanBeDealtAgain) {
  begin({.clock = find_clock([](const Fortune& f) { return f.dealer == 4; })});  // seat 1 opens
  const auto dealt = view.numbers("deck");
  const int dealer = view.number("dealer");
  wait_until("the file", [&](const View&) { return !file("config.zvq").empty(); });
  const std::string kept = file("config.zvq");
  const std::string hands = view.text("hand1") + view.text("hand2") + view.text("hand3");
  game->kill();
  game->waitForFinished(5000);

  start_quick({.clock = 777, .turns = 5});
  for (int times = 0; times < 2; ++times) {
    press_screen("Partita");
    press_screen("Ripeti ultima mano");
    wait_until("the notice", [](const View& v) {
      return v.text("box") ==
             "Nel punteggio finale saranno riportati i risultati della mano ripetuta";
    });
    press_screen("OK");
    wait_for("marked", 1);
  }
  press(400, 300);
  wait_for("pile", 1);
  EXPECT_EQ(view.numbers("deck"), dealt);
  EXPECT_EQ(view.number("dealer"), dealer);
  EXPECT_EQ(view.text("hand1") + view.text("hand2") + view.text("hand3"), hands);
  EXPECT_EQ(view.number("top"), dealt[52]);
  EXPECT_EQ(view.number("stock"), 54);
  EXPECT_EQ(view.number("round"), 0);

  play_hand(false);
  EXPECT_EQ(file("config.zvq"), kept) << "the same deck and dealer can be dealt once more";
  ASSERT_EQ(view.number("continue"), 1);
  press_screen("Partita");
  press_screen("Continua");
  wait_for("round", 1);
  wait_for("pile", 1);
  EXPECT_EQ(view.number("marked"), 0);
  EXPECT_EQ(view.number("dealer"), next_seat(dealer));
  auto sorted = view.numbers("deck");
  EXPECT_NE(sorted, dealt);
  std::sort(sorted.begin(), sorted.end());
  EXPECT_EQ(std::adjacent_find(sorted.begin(), sorted.end()), sorted.end());
}

// Whatever is pressed, typed or chosen, the game goes on and can be left.
TEST_F(Shell, ARandomWalkUpsetsNothing) {
  start_quick({.clock = find_clock(is_dealer_found), .turns = 10});
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
