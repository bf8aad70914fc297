#include <algorithm>

#include "tests/game/game.h"

namespace tombrello {
namespace {

constexpr const char* kPrompt = "'Scelta cartaro - Clicca sul mazzo' 5,5 Arial 9 white";

void type(Game& game, int seat, const std::string& name) {
  game.then([&game, seat, name] { game.window.type(TxtPlayer_0 + seat, name); });
}

void confirm(Game& game, bool by_enter = false) {
  by_enter ? (void)game.window.press_enter(TxtPlayer_0 + 1) : game.window.press(100, 120);
}

void expect_closed(Game& game) {
  for (int control = TxtPlayer_0 + 1; control <= Shape1_1; ++control) {
    EXPECT_FALSE(game.window.visible(control)) << control;
  }
  EXPECT_FALSE(has(game.texts(), "Player")) << "nothing of it stays on the table";
  for (const char* colour : {"yellow", "pale"}) {
    EXPECT_FALSE(has(seen(game.surface()), colour));
  }
}

TEST(NamesDialog, ItsFieldsHoldCapitalsThatTheFileCanKeep) {
  std::string settings = kept_deal();
  settings.replace(settings.find("PIA"), 3, "pia");  // by hand
  Game game(1, settings);
  game.choose(personalize_players).then([&] {
    EXPECT_EQ(game.window.text(TxtPlayer_0 + 3), "PIA");
    EXPECT_EQ(game.window.name(TxtPlayer_0 + 3), "Nome del compagno");
    EXPECT_EQ(game.window.front(), Shape1_0);
  });
  type(game, 2, "zoë b");
  type(game, 3, "abcdefgh");
  type(game, 4, "a,b");  // what the file couldn't hold stays out
  type(game, 1, "");
  game.then([&] {
    EXPECT_EQ(game.s().nomi, (std::array<std::string, 4>{"", "ZOË B", "ABCDEFG", "AB"}));
    EXPECT_EQ(game.window.text(TxtPlayer_0 + 2), "zoë b") << "the field shows what was typed";
    EXPECT_EQ(game.archive.writes, 0);
  });
  game.play();
}

enum class End { enter, bar, going_on };

TEST(NamesDialog, HoweverItEndsTheNamesStand) {
  for (const bool on_picture : {true, false}) {
    for (const End end : {End::enter, End::bar, End::going_on}) {
      SCOPED_TRACE(testing::Message() << on_picture << static_cast<int>(end));
      Game game;
      if (!on_picture) game.dismiss();
      game.choose(personalize_players);
      type(game, 2, "io");
      if (end != End::going_on) game.then([&, end] { confirm(game, end == End::enter); });
      if (end == End::going_on && !on_picture) game.press_deck();
      if (end == End::going_on && on_picture) game.dismiss();
      game.then([&] {
        expect_closed(game);
        EXPECT_EQ(game.archive.files.at("Players"), "TU\r\nIO\r\nNORD\r\nEST\r\n");
        EXPECT_EQ(game.archive.files.size(), 1U) << "the settings file waits for the next write";
      });
      if (on_picture && end == End::enter) {  // the others have dismissed the picture
        game.then(
            [&] { EXPECT_TRUE(game.window.press_key(quadro)) << "it has the keyboard again"; });
      }
      const bool first_card = end == End::going_on && !on_picture;
      game.then([&, first_card] {
        EXPECT_EQ(game.window.enabled(personalize_players), !first_card);
        EXPECT_EQ(game.pictures().size(), first_card ? 2U : 1U);
        EXPECT_TRUE(has(game.texts(), kPrompt));
        EXPECT_TRUE(has(game.texts(), "'O' 124.25,286"));
        EXPECT_FALSE(has(game.texts(), " 124.25,304")) << "nothing of the old, longer one";
      });
      game.play_to_end();
      EXPECT_EQ(game.archive.writes, 1);
    }
  }
}

TEST(NamesDialog, ConfirmedDuringTheDrawItLaysTheScreenOutAgain) {
  Game game;
  game.dismiss();
  for (const char* name : {"giuseppe", "ugo"}) {  // the entry stays enabled
    game.choose(personalize_players);
    type(game, 2, name);
    game.then([&game, by_enter = *name == 'u'] {
      EXPECT_FALSE(has(game.texts(), kPrompt)) << "under the dialog's heading";
      confirm(game, by_enter);
    });
  }
  game.then([&] {
    expect_closed(game);
    EXPECT_TRUE(game.is_drawing());
    EXPECT_TRUE(has(game.texts(), kPrompt));
    EXPECT_TRUE(has(game.texts(), "'O' 124.25,304"));
    EXPECT_FALSE(has(game.texts(), " 124.25,322")) << "nothing of the longer name";
    EXPECT_EQ(game.s().indice_estrazione, 1);
  });
  game.until_own_turn().then([&] { EXPECT_EQ(game.s().squadre[1], "UGO-EST"); });
  game.play_to_end();
  const std::string& settings = game.archive.files.at("config.zvq");
  EXPECT_NE(settings.find("TU\r\nUGO\r\nNORD"), std::string::npos) << "with the deal";
}

// Faces on the table, in any order.
Lines faces(Game& game) {
  Lines lines = game.pictures();
  std::erase_if(lines, [](const std::string& line) { return line.starts_with("back"); });
  std::sort(lines.begin(), lines.end());
  return lines;
}

TEST(NamesDialog, ConfirmedInAReplayedHandTheTableIsPaintedAgain) {
  Game game(3, kept_deal());
  game.choose(menu_replay).until_own_turn();
  int turns = 0;
  game.until([&] { return game.is_own_turn() && game.s().ha_pescato && ++turns == 12; });
  Lines before;
  const auto rename = [&] {
    game.choose(personalize_players).then([&] { before = faces(game); });
    type(game, 3, "leonida");
    game.then([&] {
      confirm(game, true);
      expect_closed(game);
      EXPECT_EQ(faces(game), before);
      EXPECT_TRUE(has(game.texts(), "'LEONIDA' 370,124.25"));
    });
  };
  rename();
  game.then([&] { EXPECT_TRUE(has(game.pictures(), " 400,252.875 460,347.125")) << "the stock"; });
  game.until_scoreboard();
  rename();
  game.then([&] {
    EXPECT_TRUE(has(seen(game.surface()), "box 201,170 599,410 green")) << "the panel's size";
    EXPECT_TRUE(has(game.texts(), "'Game    "));
  });
  game.choose(personalize_players).choose(menu_continue).then([&] { expect_closed(game); });
  game.play_to_end();
}

TEST(NamesDialog, ConfirmedInADealOrWhileTheOpenHandsAreShownWhatStoodStands) {
  Game game(3, kept_deal());
  game.choose(menu_replay).until_scoreboard();
  std::vector<Phase> seen_in;
  game.window.on_pass = [&] {
    const State& s = game.s();
    const bool deal = s.phase == Phase::deal && s.mano[2][3] != 0 && s.mano[2][4] == 0;
    const bool now = deal || (s.phase == Phase::open_hands && game.timer.running());
    if (!now || (!seen_in.empty() && seen_in.back() == s.phase)) return;
    const auto stands = [&] {  // what fell aside of the hands, such as a landing, is gone
      Lines lines = deal ? game.pictures() : faces(game);
      for (const auto& text : deal ? game.texts() : Lines()) lines.push_back(text);
      std::sort(lines.begin(), lines.end());
      return lines;
    };
    const Lines before = stands();
    game.window.choose(personalize_players);
    game.window.press(100, 120);
    EXPECT_EQ(stands(), before);
    seen_in.push_back(s.phase);
  };
  game.play();
  EXPECT_EQ(seen_in, (std::vector{Phase::deal, Phase::open_hands}));
}

}  // namespace
}  // namespace tombrello
