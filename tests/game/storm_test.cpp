#include <algorithm>
#include <cstdlib>
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
    for (int events = below(6); events > 0; --events, ++events_) one_event();
  }
  long events() const { return events_; }

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
  long events_ = 0;
};

/// Looks at the state whenever a turn has just ended, and at the surface in every pass.
class Watch {
 public:
  void look(Game& game, bool whole_deck) {
    const State& s = game.s();
    most_items = std::max(most_items, game.surface().items().size());
    const std::string wait = game.wait();
    waits.insert(wait);
    if (wait == "opening" || wait == "draw" || wait == "deal") seat_ = 0;
    if (s.pozzo[0] == 0 || s.di_turno == seat_) return;
    seat_ = s.di_turno;
    const bool over = std::count(s.n_mano.begin() + 1, s.n_mano.end(), 0) > 0;
    const std::string fault = check_state(s, {.hand_over = over, .whole_deck = whole_deck});
    EXPECT_EQ(fault, "");
    if (!fault.empty()) game.window.close();
  }

  std::set<std::string> waits;
  std::size_t most_items = 0;

 private:
  int seat_ = 0;
};

constexpr int kStormyPasses = 6000;

/// What the run finds in its settings file: nothing, or a deal that it may or does replay.
enum class Found { nothing, deal, any_cards, one_suit, few_cards };
constexpr int kFinds = 5;

/// A settings file whose deck is none: cards missing, or there any number of times.
std::string no_deck(Found found, std::mt19937_64& random) {
  const auto below = [&random](int n) {
    return static_cast<int>(random() % static_cast<std::uint64_t>(n));
  };
  const int first = below(found == Found::one_suit ? kSuits : kCards - 3);
  std::string file = options();
  for (int slot = 1; slot <= kCards; ++slot) {
    int card = 1 + below(kCards);
    if (found == Found::one_suit) card = 1 + first * kRanks + below(kRanks);
    if (found == Found::few_cards) card = 1 + first + below(3);
    file += " " + std::to_string(card) + " \r\n";
  }
  return file + " " + std::to_string(1 + below(kSeats)) + " \r\n";
}

// Returns how many events there were.
long storm_over_a_run(std::uint64_t seed, Watch& watch) {
  std::mt19937_64 random(seed);
  const auto found = static_cast<Found>(seed % kFinds);
  const bool whole_deck = found == Found::nothing || found == Found::deal;
  const std::string settings = whole_deck ? kept_deal(4, seed % 4 == 0 ? 80 : 100)  // smaller cards
                                          : no_deck(found, random);
  Game game(seed, found == Found::nothing ? "" : settings);
  Storm storm(game, seed);
  game.window.on_box = [&] {
    storm.blow();  // which no box lets through
    if (game.window.boxes.back().starts_with("Uscire")) game.window.answers = {Answer::no};
  };
  game.window.on_pass = [&] {
    watch.look(game, whole_deck);
    if (game.window.passes() <= kStormyPasses) storm.blow();
  };
  if (!whole_deck) game.choose(menu_replay);
  // During the storm the sensible player acts at times only; then alone, to the scoreboard, which
  // a deck that is none need not lead to.
  game.until([&] { return game.window.passes() > kStormyPasses; }, 7).then([&] {
    game.window.press(10, 300);  // any panel goes
    game.window.move(255, 575);
    if (game.is_own_turn()) game.window.press(255, 575);  // selected cards are lowered
  });
  bool reached = !whole_deck;
  if (whole_deck) game.until_scoreboard().then([&] { reached = true; });
  game.play();
  EXPECT_TRUE(reached && (!whole_deck || has(game.texts(), "'Game    ")));
  return storm.events();
}

// A longer storm, or another one, is asked for by the environment.
long asked_for(const char* name, long otherwise) {
  const char* const value = std::getenv(name);
  return value == nullptr ? otherwise : std::atol(value);
}

TEST(Storm, NothingUpsetsTheGame) {
  Watch watch;
  const auto first = static_cast<std::uint64_t>(asked_for("TOMBRELLO_STORM_SEED", 1));
  const long wanted = asked_for("TOMBRELLO_STORM_EVENTS", 150'000);
  long events = 0;
  for (std::uint64_t seed = first; events < wanted && !HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    events += storm_over_a_run(seed, watch);
  }
  RecordProperty("events", std::to_string(events));
  EXPECT_EQ(watch.waits, (std::set<std::string>{"opening", "draw", "deal", "own turn", "pause",
                                                "computer's turn", "reshuffle", "scoreboard"}));
  EXPECT_LT(watch.most_items, 200U) << "the surface stays short";
}

/// A stormy game that is left, and stays where it was left.
class Left {
 public:
  explicit Left(std::uint64_t seed) : game_(seed, kept_deal()), storm_(game_, seed) {
    game_.window.on_box = [this] {
      game_.window.answers = {Answer::no};
      if (static_cast<int>(game_.window.boxes.size()) == box) leave();
    };
    game_.window.on_pass = [this] {
      storm_.blow();
      if (!game_.window.closing() && game_.window.passes() == pass) leave();
    };
  }

  void play() {
    game_.until([] { return false; }, 7).play();
    EXPECT_EQ(game_.window.passes(), passes_);
    EXPECT_EQ(game_.archive.writes, writes_) << "nothing is saved on leaving";
    EXPECT_EQ(game_.wait(), wait_) << "nothing went on";
  }

  int pass = 0;
  int box = 0;

 private:
  void leave() {
    game_.window.close();
    passes_ = game_.window.passes();
    writes_ = game_.archive.writes;
    wait_ = game_.wait();
  }

  Game game_;
  Storm storm_;
  int passes_ = 0;
  int writes_ = 0;
  std::string wait_;
};

// Whatever is just coming or going: panels, boxes, pauses, a deal, a turn, the count.
TEST(Leaving, InAnyPassAndUnderAnyBoxItEndsTheGameThere) {
  for (int pass = 1; pass <= 2000; pass += 9) {
    SCOPED_TRACE("pass " + std::to_string(pass));
    Left left(static_cast<std::uint64_t>(pass));
    left.pass = pass;
    left.play();
  }
  for (int box = 1; box <= 12; ++box) {
    SCOPED_TRACE("box " + std::to_string(box));
    Left left(static_cast<std::uint64_t>(box));
    left.box = box;
    left.play();
  }
}

}  // namespace
}  // namespace tombrello
