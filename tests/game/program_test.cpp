#include <algorithm>
#include <functional>

#include "tests/game/game.h"

namespace tombrello {
namespace {

constexpr std::uint64_t kTiedDraw = 1;  // a clock reading

TEST(Opening, AClickAKeyOrAPressBesideDismissesThePicture) {
  const std::vector<std::function<void(PlayedWindow&)>> ways = {
      [](PlayedWindow& w) { w.click(quadro); }, [](PlayedWindow& w) { w.press_key(quadro); },
      [](PlayedWindow& w) { w.press(700, 50); },
      [](PlayedWindow& w) { w.press(100, 300, Button::right); }};
  for (const auto& dismiss : ways) {
    Game game;
    game.then([&] {
      EXPECT_TRUE(game.window.shown());
      EXPECT_EQ(game.window.caption(), "Frassivo - Tombrello");
      EXPECT_EQ(game.window.front(), quadro);
      game.window.move(300, 490);
      game.window.choose(menu_help);
      EXPECT_TRUE(game.window.press_key(quadro));
      EXPECT_FALSE(game.window.visible(TxtHelp));
      EXPECT_TRUE(game.window.visible(quadro));
      dismiss(game.window);
    });
    game.then([&] { EXPECT_FALSE(game.window.visible(quadro)); }).play_to_end();
  }
}

TEST(DrawForDealer, NewCardsLieOverThoseOfATiedPass) {
  Game game(kTiedDraw);
  game.dismiss().until([&] { return !game.is_drawing(); });
  game.window.on_pass = [&] {
    if (!game.timer.running() || game.is_drawing() || game.window.closing()) return;
    EXPECT_EQ(game.pictures().size(), 5U);
    game.window.close();
  };
  game.play();
  EXPECT_EQ(game.window.boxes, Lines{"Ripeti, prego"});
}

// Hands as they were dealt, and the card turned up.
Lines dealt(const State& s) {
  Lines cards = {std::to_string(s.pozzo[0])};
  for (int seat = 1; seat <= kSeats; ++seat) {
    std::array<int, kHandCards> hand{};
    std::copy_n(s.mano[seat].begin() + 1, kHandCards, hand.begin());
    std::sort(hand.begin(), hand.end());
    for (const int card : hand) cards.push_back(std::to_string(seat) + ":" + std::to_string(card));
  }
  return cards;
}

constexpr const char* kNotice =
    "Nel punteggio finale saranno riportati i risultati della mano ripetuta\n"
    "Questi sostituiranno quelli della mano precedente";

TEST(Replay, TheMarkLivesForOneHandAndTheNextIsShuffled) {
  Game game(3, kept_deal());
  Lines first;
  game.choose(menu_replay).choose(menu_replay).dismiss().until_own_turn().then([&] {
    EXPECT_EQ(game.window.boxes, (Lines{kNotice, kNotice}));
    EXPECT_EQ(game.surface().background(), kFelt);
    EXPECT_EQ(game.s().mano[1][1], 104) << "dealer 4: the first packet goes to seat 1";
    EXPECT_TRUE(game.window.checked(menu_replay));
    EXPECT_TRUE(game.window.enabled(menu_replay));
    EXPECT_TRUE(game.window.enabled(personalize_players));
    first = dealt(game.s());
  });
  game.until_scoreboard().then([&] {
    EXPECT_EQ(game.s().numero_mano, 0);
    const auto& row = game.s().punti_mano[0];
    EXPECT_EQ(game.s().punti_totali[1], row[1]);
    EXPECT_TRUE(has(game.texts(), "'Game    LEO-PIA' 220,175 "));
    EXPECT_TRUE(has(game.texts(), "'      " + std::to_string(row[1]) + "' 220,175+1"));
  });
  game.choose(menu_replay).choose(menu_continue).until_own_turn().then([&] {
    EXPECT_EQ(game.window.boxes.size(), 3U);
    EXPECT_FALSE(game.window.checked(menu_replay));
    EXPECT_FALSE(game.window.enabled(menu_replay));
    EXPECT_EQ(game.s().numero_mano, 1);
    EXPECT_EQ(game.s().cartaro, 1);
    EXPECT_NE(dealt(game.s()), first);
  });
  game.play_to_end();
}

TEST(Replay, MarkedDuringTheDrawItDealsTheDeckOfTheDraw) {
  Game game(3, kept_deal());
  std::array<std::int16_t, kCards + 1> deck{};
  game.dismiss().press_deck().choose(menu_replay).then([&] { deck = game.s().mazzo; });
  game.until([&] { return !game.is_drawing(); }).until_own_turn().then([&] {
    EXPECT_EQ(game.s().numero_mano, 1);
    EXPECT_EQ(game.s().mazzo, deck);
    EXPECT_TRUE(game.window.checked(menu_replay));
    EXPECT_FALSE(game.window.choose(menu_replay));
  });
  game.play_to_end();
}

TEST(Menus, ASpeedLastsForTheRunTheRustleIsWrittenAtOnce) {
  Game game(1, kept_deal());
  std::string quiet = kept_deal();
  quiet.replace(quiet.find("UGO\r\n 1 ") + 6, 1, "0");
  game.choose(velocita_3).then([&] { EXPECT_EQ(game.archive.writes, 0); });
  for (const auto& [entry, file] :
       {std::pair{menu_card_rustle_0, quiet}, {menu_card_rustle_1, kept_deal()}}) {
    game.choose(entry).then(
        [&game, file = file] { EXPECT_EQ(game.archive.files["config.zvq"], file); });
  }
  game.dismiss().then([&] {
    EXPECT_EQ(game.s().ritardo_base, 0.5F) << "a match starts slow, whatever is checked";
    EXPECT_TRUE(game.window.checked(velocita_3));
  });
  game.play_to_end();
}

TEST(Menus, APanelLiesInFrontAndGoesAtAPressOnItOrBeside) {
  Game game;
  for (const auto& [entry, panel, area] : {std::tuple{menu_about, Text4, Area{0, 0, 150.8F, 80.1F}},
                                           {istruzioni, TxtItaliano, Area{0, 0, 285, 197.7F}},
                                           {menu_help, TxtHelp, Area{0, 0, 285, 197.7F}}}) {
    game.choose(entry).then([&game, panel = panel, area = area] {
      EXPECT_EQ(game.window.front(), panel);
      EXPECT_EQ(game.window.area(panel), area);
      game.window.click(panel);
      EXPECT_FALSE(game.window.visible(panel));
    });
  }
  game.choose(menu_help).dismiss().then([&] {
    EXPECT_TRUE(game.window.visible(TxtHelp)) << "the picture's click is no press on the table";
  });
  game.press_deck().then([&] {
    EXPECT_FALSE(game.window.visible(TxtHelp));
    EXPECT_EQ(game.pictures().size(), 2U) << "it acted as well";
  });
  game.play_to_end();
}

TEST(Menus, ATroubleIsSaidOnce) {
  Game game;
  game.choose(menu_card_rustle_1).then([&] { game.archive.to_come = Trouble::full; });
  game.sequencer.missing = "strumenti";
  const auto says = [&](const char* what, bool so) {
    game.then([=, &game] { EXPECT_EQ(has({game.window.told_now}, what), so) << what; });
  };
  game.until_own_turn();  // the deal was to be kept
  says("spazio", true);
  for (const bool once : {true, false}) {
    game.choose(all_0);
    says("strumenti", once);
    game.then([&game] { game.window.press(430, 300); }).choose(menu_card_rustle_0);
    says("spazio", false);
  }
  game.play_to_end();
}

TEST(Leaving, YesToEsciEndsTheGame) {
  Game game;
  game.dismiss().choose(esci).then([] { FAIL() << "the window is closed"; });
  game.play();
  EXPECT_EQ(game.window.boxes, Lines{"Uscire da Tombrello?"});
  EXPECT_TRUE(game.surface().items().empty());
  EXPECT_EQ(game.archive.writes, 0);
  for (const auto* media : {&game.wave, &game.sequencer}) EXPECT_EQ(media->log.back(), "close");
}

}  // namespace
}  // namespace tombrello
