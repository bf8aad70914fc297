#include <random>

#include "tests/game/game.h"

namespace tombrello {
namespace {

/// The table alone: rules, painter and pointer, without line, outline and keys.
class BareGame : public WindowEvents, public QuietShell {
 public:
  explicit BareGame(std::uint64_t seed) : clock(seed) {
    window.set_events(this);
    settings_.Set_Read();
    for (const EntryId entry : {menu_continue, menu_replay, personalize_players}) {
      window.add_entry(entry, kMenuBar, "");
    }
    panels_.create();
    names_.create();
    effects_.prepare();
    window.surface().set_background(kFelt);
  }
  void play() try { rules_.match.Main(); } catch (const Leaving&) {
  }

  void pressed(Button button, float x, float y) override { pointer_.Form_MouseDown(button, x, y); }
  void moved(float x, float y) override { pointer_.Form_MouseMove(x, y); }
  void entry_chosen(EntryId) override { s.continua = true; }
  void timer_ticked() override { pacing_.Timer1_Timer(); }
  void control_clicked(ControlId) override {}
  void control_key_pressed(ControlId) override {}
  void field_changed(ControlId, const std::string&) override {}
  void field_confirmed(ControlId) override {}
  void key_pressed(Key) override {}
  void key_released(Key) override {}
  void place_pressed(int, Button) override {}
  void enable_continue(bool enabled) override { window.set_enabled(menu_continue, enabled); }
  void enable_names(bool enabled) override { window.set_enabled(personalize_players, enabled); }

  State s;
  HeadlessTimer timer;
  HeadlessWindow window{timer};
  CountingClock clock;
  SilentMedia wave;
  SilentBeeper beeper;

 private:
  Geometry g_;
  MemoryArchive archive_;
  Settings settings_{s, archive_};
  HeadlessWindow elsewhere_{timer};
  Panels panels_{window};
  PaintedTable table_{s, g_, window};
  NamesDialog names_{s, window, settings_, table_, plain_capital};
  Chronicle chronicle_{s, elsewhere_};  // the pointer has a word for it, which nobody hears
  Pointer pointer_{s, g_, window, panels_, names_, chronicle_};
  Pacing pacing_{s, window, timer, [] {}};
  Effects effects_{wave, beeper, s.fruscio_opz};
  QuietEvents events_;
  Rules rules_{s, g_, clock, {table_, pacing_, effects_, *this, events_}};
};

constexpr int kPresses = 2'000;

/// Presses by chance where there is something to press, and writes down what stands after each.
class Trace {
 public:
  void press(HeadlessWindow& window, SilentMedia& wave, const State& s) {
    if (window.enabled(menu_continue)) window.choose(menu_continue);
    constexpr Area kSpots[] = {{250, 480, 530, 585}, {250, 480, 530, 585}, {340, 252, 460, 348},
                               {290, 410, 600, 480}, {290, 145, 600, 240}, {0, 0, 800, 600}};
    const Area& spot = kSpots[chance_() % 6];
    const auto along = [this](float from, float to) {
      return from + (to - from) * static_cast<float>(chance_() % 1000) / 1000;
    };
    const float x = along(spot.left, spot.right);
    const float y = along(spot.top, spot.bottom);
    window.move(x, y);
    window.press(x, y, chance_() % 3 == 0 ? Button::right : Button::left);
    std::string now = std::to_string(static_cast<int>(window.pointer())) + std::to_string(s.azione);
    for (const auto& line : seen(window.surface())) now += line + '\n';
    for (const auto& call : wave.take()) now += call + '\n';
    stood.push_back(std::hash<std::string>()(now));
    if (stood.size() == kPresses) return;
    window.script.push_back([&] { press(window, wave, s); });
  }
  std::vector<std::size_t> stood;

 private:
  std::minstd_rand chance_{11};
};

// Hands off the keyboard, line, outline and places told to a screen reader change nothing.
TEST(AroundTheTable, WithTheMouseAloneTheTableIsWhatItWasWithout) {
  Trace with;
  Trace without;
  Game game(4);
  game.window.listening = true;
  game.dismiss().then([&] { with.press(game.window, game.wave, game.s()); }).play();
  BareGame bare(4);
  bare.window.script.push_back([&] { without.press(bare.window, bare.wave, bare.s); });
  bare.play();
  EXPECT_EQ(with.stood.size(), static_cast<std::size_t>(kPresses));
  EXPECT_TRUE(with.stood == without.stood);
  EXPECT_EQ(bare.s.numero_mano, game.s().numero_mano);
  EXPECT_GT(bare.s.numero_mano, 1) << "a hand to its end, and the count";
  EXPECT_FALSE(game.window.places.empty());
}

}  // namespace
}  // namespace tombrello
