#pragma once

#include <memory>
#include <string>

#include "headless/headless_window.h"
#include "headless/silent_media.h"
#include "match/state_check.h"
#include "shell/program.h"
#include "tests/game/seen.h"
#include "tools/simulation/quiet.h"
#include "tools/simulation/script.h"
#ifdef ON_THE_DESKTOP
#include "tests/qt/offscreen_window.h"
#endif

namespace tombrello {

#ifdef ON_THE_DESKTOP
using PlayedWindow = qt::OffscreenWindow;
#else
using PlayedWindow = HeadlessWindow;
#endif

/// A whole program on a headless window, or, with the same acts, on the desktop's. `play` runs it
/// until the script has run out, for the player leaves then.
class Game {
 public:
  explicit Game(std::uint64_t seed = 1, const std::string& settings = "",
                ScriptKind player = ScriptKind::melder)
      : clock(seed), player_(make_script(player, seed)) {
    if (!settings.empty()) archive.files["config.zvq"] = settings;
  }

  void play() { program.run(); }
  /// The same, for a script that nothing may cut short.
  void play_to_end() {
    play();
    EXPECT_TRUE(window.script.empty());
  }
  Game& then(ScriptedPlayer::Action action) {
    window.script.push_back(std::move(action));
    return *this;
  }
  Game& choose(EntryId entry) {
    return then([=, this] { EXPECT_TRUE(window.choose(entry)); });
  }
  Game& dismiss() {
    return then([this] { window.click(quadro); });
  }
  Game& press_deck(int times = 1) {
    for (int i = 0; i < times; ++i) then([this] { window.press(410, 300); });
    return *this;
  }
  /// The player goes on until `done`, looked at whenever the game waits for a press, and acts
  /// in every so-many-th pass.
  Game& until(const std::function<bool()>& done, int every = 1) {
    return then([=, this] { go_on(done, every); });
  }
  Game& until_own_turn() {
    return until([this] { return is_own_turn(); });
  }
  Game& until_scoreboard() {
    return until([this] { return is_over(); });
  }

  const State& s() const { return program.state(); }
  Surface& surface() { return window.surface(); }
  Lines texts() { return seen(surface(), Kind::texts); }
  Lines pictures() { return seen(surface(), Kind::pictures); }
  bool is_drawing() const { return s().azione == kDealerDraw; }
  bool is_dealing() const { return in_hand() && s().pozzo[0] == 0; }
  bool is_over() const {
    return in_hand() && s().n_mano[s().di_turno] == 0 && !timer.running() && !s().continua;
  }
  bool is_own_turn() const {
    return in_hand() && s().pozzo[0] != 0 && s().di_turno == 1 && !timer.running() && !is_over();
  }

  /// What the game waits for, in words.
  std::string wait() {
    if (window.visible(quadro)) return "opening";
    if (is_drawing()) return "draw";
    if (is_dealing()) return "deal";
    if (has(texts(), "Rimescolo")) return "reshuffle";
    if (is_over()) return "scoreboard";
    if (is_own_turn()) return "own turn";
    return s().di_turno == 1 ? "pause" : "computer's turn";
  }

  /// One sensible act of the player, whatever the game waits for.
  void act() {
    if (window.visible(quadro)) {
      window.click(quadro);
    } else if (is_drawing()) {
      window.move(410, 300);
      window.press(410, 300);
    } else if (is_over()) {
      window.choose(menu_continue);
    } else if (is_own_turn()) {
      act_on_turn();
    }
  }

  HeadlessTimer timer;
  PlayedWindow window{timer};
  MemoryArchive archive;
  CountingClock clock;
  SilentMedia wave;
  SilentMedia sequencer;
  SilentBeeper beeper;
  Program program{{window, timer, archive, clock, wave, sequencer, beeper, plain_capital}};

 private:
  void go_on(const std::function<bool()>& done, int every) {
    if (done()) return;
    if (window.passes() % every == 0) act();
    window.script.push_front([=, this] { go_on(done, every); });
  }
  bool in_hand() const { return s().n_mano[2] + s().n_mano[4] + s().n_mano[1] > 0; }

  // Asks the script of the simulations, which posts codes, and does with the pointer what makes
  // the program post them.
  void act_on_turn() {
    State copy = s();
    for (auto& card : copy.mano[1]) card = static_cast<std::int16_t>(card % kSelected);
    copy.azione = kNoAction;
    player_->act(copy, program.geometry());
    const Geometry& m = program.geometry();
    const float x = std::clamp(copy.x_click, m.striscia_x() + 1, m.striscia_x() + 300);
    const float fan_y = 2 * m.mezza_altezza - 30;
    switch (copy.azione) {
      case kDrawPile:
        return point(m.mezza_larghezza - 10, m.mezza_altezza);
      case kDrawStock:
        return point(m.mezza_larghezza + 10, m.mezza_altezza);
      case kSelect:
        return point(copy.x_click, fan_y, Button::right);
      case kLayOwnSide:
        return point(x, m.mezza_altezza + m.altezza_carta + 30);
      case kLayPartnerSide:
        return point(x, m.altezza_carta + 60);
      default:
        return point(copy.x_click, fan_y);
    }
  }
  void point(float x, float y, Button button = Button::left) {
    window.move(x, y);
    window.press(x, y, button);
  }

  std::unique_ptr<Script> player_;
};

/// All that is seen, from the bottom up.
inline Lines view(Game& game) {
  Lines lines = seen(game.surface());
  lines.insert(lines.begin(), "the table is " + colour_name(game.surface().background()));
  for (ControlId control = quadro; control <= Shape1_1; ++control) {
    if (!game.window.visible(control)) continue;
    const bool field = control > TxtPlayer_0 && control <= TxtPlayer_4;
    const Area& area = game.window.area(control);
    lines.push_back((field ? "field '" + game.window.text(control) + "' "
                           : "control " + std::to_string(control) + " ") +
                    at(area.left, area.top) + " " + at(area.right, area.bottom));
  }
  if (const auto& mark = game.window.mark) {
    lines.push_back("mark " + at(mark->left, mark->top) + " " + at(mark->right, mark->bottom));
  }
  constexpr const char* kPointers[] = {"arrow", "up arrow", "hourglass"};
  lines.push_back(std::string("pointer ") + kPointers[static_cast<int>(game.window.pointer())]);
  return lines;
}

/// A settings file without a deal, for cards of so many per cent of their size.
inline std::string options(int scale = 100) {
  return " 2 \r\nLEO\r\nADA\r\nPIA\r\nUGO\r\n 1 \r\n 0 \r\n " + std::to_string(scale) + " \r\n";
}

/// One with a deal: the deck in falling order, some packs swapped, so that seat 1 gets spades with
/// the dealer 4, who has the last packet.
inline std::string kept_deal(int dealer = 4, int scale = 100) {
  std::string file = options(scale);
  for (int card = kCards; card >= 1; --card) {
    const int other = card > kPack ? card - kPack : card + kPack;
    const bool swap = first_pack_twin(card) % 3 == 0;
    file += " " + std::to_string(swap ? other : card) + " \r\n";
  }
  return file + " " + std::to_string(dealer) + " \r\n";
}

}  // namespace tombrello
