// One match, played by a script, as it is seen: tests/game/golden.txt tells after each step what
// has come and what has gone. CONTRIBUTING.md tells how to renew it.

#include <algorithm>

#include "tests/game/game.h"

namespace tombrello {
namespace {

/// The first round is told in every pass, what comes later when seat 1 is on turn again.
class Record {
 public:
  explicit Record(Game& game) : game_(game) {
    game.window.on_pass = [this] {
      const State& s = game_.s();
      const bool new_turn = s.di_turno != turn_;
      turns_ += new_turn && s.phase == Phase::hand;
      turn_ = s.di_turno;
      if (turns_ > 5 && s.phase == Phase::hand && !(new_turn && turn_ == 1)) return;
      // A deal is looked at between its packets.
      if (s.phase != Phase::deal || game_.timer.period() > kBetweenCards) step();
    };
  }
  std::string text;

 private:
  void step() {
    const Lines now = view(game_);
    const std::string changed = changes(before_, now, "  ");
    if (changed.empty()) return;
    text += "\n" + game_.window.told_now + "\n" + changed;
    if (then_ != game_.window.told_then) text += "  (" + game_.window.told_then + ")\n";
    before_ = now;
    then_ = game_.window.told_then;
  }
  static constexpr int kBetweenCards = 389;  // milliseconds

  Game& game_;
  Lines before_;
  int turn_ = 0;
  int turns_ = 0;
  std::string then_;
};

/// From the opening, with the names given, to the deal of the second hand.
std::string played(std::uint64_t seed) {
  Game game(seed);
  Record record(game);
  game.choose(personalize_players).then([&] { game.window.type(TxtPlayer_0 + 1, "zoë"); });
  game.then([&] { game.window.type(TxtPlayer_0 + 2, "leo"); });
  game.then([&] { game.window.type(TxtPlayer_0 + 4, "io"); }).dismiss();
  for (const EntryId panel : {istruzioni, menu_about, menu_help}) game.choose(panel);
  game.until_own_turn().then([&] {
    game.window.move(300, 550);
    game.window.press(300, 550, Button::right);
  });
  game.until_scoreboard().choose(menu_continue).then([] {});
  game.play();
  return record.text;
}

/// The whole table at another size of the cards, at the end of the same hand.
std::string at_four_fifths(std::uint64_t seed) {
  Game game(seed, options(80));
  std::string text = "\nCards of four fifths of their size\n";
  game.until_scoreboard().then([&] {
    for (const auto& line : view(game)) text += "  " + line + "\n";
  });
  game.play_to_end();
  return text;
}

TEST(Golden, OneMatchIsSeenAsItWas) {
  expect_golden("golden.txt", played(196) + at_four_fifths(196));
}

}  // namespace
}  // namespace tombrello
