#include <algorithm>
#include <random>
#include <set>

#include "tests/game/game.h"

namespace tombrello {
namespace {

/// A person who presses, moves, chooses and types whatever comes to the fingers, in every pass
/// of the window, while a sensible one plays on in the waits.
class Storm {
 public:
  Storm(Game& game, std::uint64_t seed) : game_(game), random_(seed) {}

  void blow() {
    for (int events = below(6); events > 0; --events) one_event();
  }
  int presses() const { return presses_; }

 private:
  int below(int n) { return static_cast<int>(random_() % static_cast<std::uint64_t>(n)); }
  float along(float from, float to) {
    return from + (to - from) * static_cast<float>(below(1001)) / 1000;
  }

  void one_event() {
    switch (below(10)) {
      case 0:
        return choose();
      case 1:
        return use_controls();
      case 2:
      case 3:
        place();
        return game_.window.move(x_, y_);
      default:
        place();
        if (below(2) == 0) game_.window.move(x_, y_);
        ++presses_;
        return game_.window.press(x_, y_, below(2) == 0 ? Button::left : Button::right);
    }
  }

  // Anywhere, or where something is to be hit.
  void place() {
    constexpr Area kSpots[] = {{0, 0, 800, 600},     {250, 480, 530, 585}, {250, 480, 530, 585},
                               {340, 252, 460, 348}, {290, 410, 600, 480}, {290, 145, 600, 240},
                               {70, 110, 140, 130}};
    const Area& spot = kSpots[below(7)];
    x_ = along(spot.left, spot.right);
    y_ = along(spot.top, spot.bottom);
  }

  void choose() {
    EntryId entry = 1 + below(canzoni_0);
    if (entry == menu_continue && below(8) != 0) entry = menu_help;  // the scoreboard stays a while
    game_.window.choose(std::min<EntryId>(entry, esci));
  }

  void use_controls() {
    const ControlId control = 1 + below(Shape1_1);
    constexpr const char* kTyped[] = {"", "x", "ambrogio", "è,\"", "zoë\n", " a b "};
    if (control > TxtPlayer_0 && control <= TxtPlayer_4) {
      game_.window.type(control, kTyped[below(6)]);
      if (below(4) == 0) game_.window.press_enter(control);
    } else if (control <= Text4) {
      if (control != quadro || below(20) == 0) game_.window.click(control);
    }
  }

  Game& game_;
  std::mt19937_64 random_;
  float x_ = 0;
  float y_ = 0;
  int presses_ = 0;
};

/// Looks at the state whenever a turn has just ended, and at the surface in every pass.
class Watch {
 public:
  void look(Game& game) {
    const State& s = game.s();
    most_items = std::max(most_items, game.surface().items().size());
    const std::string wait = game.wait();
    waits.insert(wait);
    if (wait == "opening" || wait == "draw" || wait == "deal") seat_ = 0;
    if (s.pozzo[0] == 0 || s.di_turno == seat_) return;
    seat_ = s.di_turno;
    const bool over = std::count(s.n_mano.begin() + 1, s.n_mano.end(), 0) > 0;
    const std::string fault = check_state(s, {.hand_over = over, .whole_deck = true});
    EXPECT_EQ(fault, "");
    if (!fault.empty()) game.window.close();
  }

  std::set<std::string> waits;
  std::size_t most_items = 0;

 private:
  int seat_ = 0;
};

constexpr int kStormyPasses = 6000;

// Returns how many presses fell.
int storm_over_a_run(std::uint64_t seed, Watch& watch) {
  // Some runs find a deal that they may replay, some smaller cards.
  std::string settings = kept_deal();
  if (seed % 4 == 0) settings.replace(settings.find("100"), 3, "80");
  Game game(seed, seed % 2 == 0 ? settings : "");
  Storm storm(game, seed);
  game.window.on_box = [&] {
    storm.blow();  // which no box lets through
    if (game.window.boxes.back().starts_with("Uscire")) game.window.answers = {Answer::no};
  };
  game.window.on_pass = [&] {
    watch.look(game);
    if (game.window.passes() <= kStormyPasses) storm.blow();
  };
  // During the storm the sensible player acts at times only; then alone, to the scoreboard.
  game.until([&] { return game.window.passes() > kStormyPasses; }, 7).then([&] {
    game.window.press(10, 300);  // any panel goes
    game.window.move(255, 575);
    if (game.is_own_turn()) game.window.press(255, 575);  // selected cards are lowered
  });
  bool reached = false;
  game.until_scoreboard().then([&] { reached = true; });
  game.play();
  EXPECT_TRUE(reached && has(game.texts(), "'Game    "));
  return storm.presses();
}

TEST(Storm, NothingUpsetsTheGame) {
  Watch watch;
  int presses = 0;
  for (std::uint64_t seed = 1; seed <= 12; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    presses += storm_over_a_run(seed, watch);
  }
  EXPECT_GT(presses, 20000);
  EXPECT_EQ(watch.waits, (std::set<std::string>{"opening", "draw", "deal", "own turn", "pause",
                                                "computer's turn", "reshuffle", "scoreboard"}));
  EXPECT_LT(watch.most_items, 200U) << "the surface stays short";
}

}  // namespace
}  // namespace tombrello
