#include <algorithm>

#include "player.h"

namespace tombrello {
namespace {

using Table = PlayingSession;

constexpr int kPanelGreen = 0x00C000;
constexpr int kFeltGreen = 0x007000;

bool is_dealer_found(const Fortune& fortune) {
  return fortune.dealer != 0;
}

TEST_F(Table, AWholeHandFromTheDrawToTheNextDeal) {
  Fortune fortune;
  start_quick({.clock = find_clock([&](const Fortune& f) {
                 fortune = f;
                 return f.dealer == 4;  // seat 1 opens: nothing moves before it does
               }),
               .turns = 5});
  dismiss_opening();
  constexpr int kOrder[] = {2, 3, 4, 1};
  for (int card = 1; card <= 4; ++card) {
    EXPECT_EQ(view.number("names"), card == 1) << "names can be given until the first card";
    press(400, 300);
    const auto seat = static_cast<std::size_t>(kOrder[card - 1] - 1);
    if (card == 4) break;
    wait_until("a card for dealer", [&](const View& v) {
      return v.numbers("turned").at(seat) == ValCarta(fortune.draw[static_cast<std::size_t>(card)]);
    });
    wait_for("index", card + 1);
  }
  wait_for("pile", 1);
  EXPECT_EQ(view.number("dealer"), fortune.dealer);
  EXPECT_EQ(view.hand(), fortune.hand());
  EXPECT_EQ(view.number("top"), fortune.deck[53]);
  EXPECT_EQ(view.number("replay"), 0);
  EXPECT_EQ(view.number("continue"), 0);

  play_hand(true);
  const auto totals = view.numbers("totals");
  EXPECT_NE(totals, (std::vector<int>{0, 0}));
  EXPECT_EQ(pixel(settled_shot(), 210, 400), kPanelGreen);
  ASSERT_EQ(view.number("continue"), 1) << "no single hand decides this match";

  press_screen("Partita");
  press_screen("Continua");
  wait_for("round", 2);
  EXPECT_EQ(view.number("dealer"), next_seat(fortune.dealer));
  wait_for("pile", 1);
  EXPECT_EQ(view.numbers("totals"), totals);
  EXPECT_NE(view.numbers("deck"), fortune.deck);
  EXPECT_EQ(pixel(settled_shot(), 210, 400), kFeltGreen);
  expect_still_running();
}

// The opening, the draw for dealer, every turn and every count: Tab to a place, Enter there.
TEST_F(Table, AMatchIsPlayedWithKeysAlone) {
  start_quick({.clock = clock_of_short_match(), .turns = 2});
  const auto over = [](const View& v) {
    const auto totals = v.numbers("totals");
    return std::max(totals.at(0), totals.at(1)) >= kWinningTotal;
  };
  for (int strokes = 0; strokes < 1500 && !over(view); ++strokes) {
    xdo({"key", "--delay", "10", "Tab", "Return"});
    comes_true(over, Milliseconds(30));
  }
  EXPECT_TRUE(over(view)) << view.text("totals");
  EXPECT_GT(view.number("round"), 1) << "Enter went on after a count";
  const std::string told = view.text("chronicle");
  EXPECT_TRUE(told.starts_with("Avete vinto") || told.starts_with("La partita va a")) << told;
  expect_still_running();
}

TEST_F(Table, ATieIsDrawnAgain) {
  Fortune fortune;
  start_quick({.clock = find_clock([&](const Fortune& f) {
                 fortune = f;
                 return f.dealer == 0 && ValCarta(f.draw[7]) == 13 && ValCarta(f.draw[4]) < 13 &&
                        ValCarta(f.draw[5]) < 13 && ValCarta(f.draw[6]) < 13;
               })});
  dismiss_opening();
  turn_up(1, 4);
  wait_until("the box", [](const View& v) { return v.text("box") == "Ripeti, prego"; });
  press(400, 100);  // beside the box: it stays
  expect_still_running();
  EXPECT_EQ(view.text("box"), "Ripeti, prego");
  press_screen("OK");
  wait_until("the second pass", [](const View& v) { return v.text("box").empty(); });
  EXPECT_EQ(view.number("index"), 4) << "seat 2 gets the card that seat 1 had";
  turn_up(4, 7);
  wait_for("pile", 1);
  EXPECT_EQ(view.number("dealer"), 1);
}

// The person opens, and holds four cards in a run.
TEST_F(Table, MeldsAdditionsAndDiscards) {
  Fortune fortune;
  begin({.clock = find_clock([&](const Fortune& f) {
           fortune = f;
           return f.dealer == 4 && find_long_run(f.hand()).size() >= 4;
         })});
  wait_for_turn();
  press_slot(3, 3);  // before the draw nothing rises
  press_slot(3, 1);  // nor is anything thrown away
  draw(kPile);
  EXPECT_EQ(view.cards(1), 14);
  EXPECT_EQ(view.hand().back(), fortune.deck[53]);
  EXPECT_EQ(view.number("pile"), 0);
  EXPECT_EQ(pixel(settled_shot(), kPile, 300), kFeltGreen);

  const auto hand = view.hand();
  select({2, 5});
  EXPECT_EQ(pixel(settled_shot(), 275, 470) == kFeltGreen, false) << "a raised card shows";
  press_slot(5, 3);
  wait_until("card 5 down again", [&](const View& v) { return v.hand().at(4) == hand.at(4); });
  press_slot(1, 1);
  wait_until("all down", [&](const View& v) { return v.hand() == hand; });
  EXPECT_EQ(view.number("seat"), 1) << "the press lowered the card and threw none away";

  select({1, 2});
  lay();
  EXPECT_EQ(view.text("melds1"), "") << "two cards are too few";
  const auto run = find_long_run(view.hand());
  select({run[0], run[1], run[3]});
  lay();
  EXPECT_EQ(view.text("melds1"), "") << "a run with a gap";
  EXPECT_EQ(view.cards(1), 14);

  const auto sorted = find_long_run(view.hand());
  const int fourth = view.hand().at(static_cast<std::size_t>(sorted[3] - 1));
  select({sorted[0], sorted[1], sorted[2]});
  lay();
  EXPECT_EQ(view.numbers("melds1").size(), 4U);
  EXPECT_EQ(view.cards(1), 11);
  EXPECT_NE(pixel(settled_shot(), 300, 400), kFeltGreen);

  const auto rest = view.hand();
  const auto at = std::find(rest.begin(), rest.end(), fourth) - rest.begin();
  select({static_cast<int>(at) + 1});
  lay(315);
  EXPECT_EQ(view.numbers("melds1").size(), 5U);
  EXPECT_EQ(view.cards(1), 10);

  const int thrown = view.hand().at(0);
  discard(1);
  EXPECT_EQ(view.cards(1), 9);
  wait_until("the thrown card or the play of seat 2",
             [&](const View& v) { return v.number("top") == thrown || v.number("drawn") == 1; });
  wait_for_turn();
  draw(kStock);
  EXPECT_EQ(view.cards(1), 10);
  discard(10);
  wait_for_turn();
  for (int turn = 0; turn < 4 && !hand_is_over(); ++turn) {
    ASSERT_NE(view.text("melds4"), "");
    EXPECT_NE(pixel(settled_shot(), 565, 105), kFeltGreen) << "a whole card beside seat 3's fan";
    draw(kStock);
    discard(1);
    wait_for_turn();
  }
  expect_still_running();
}

TEST_F(Table, ImpatientPressesUpsetNothing) {
  start_quick({.clock = find_clock(is_dealer_found), .deal = 50, .turns = 100});
  auto storm = [&](int presses, unsigned step) {
    move(400, 300);
    std::vector<std::string> words;
    for (unsigned i = 1; i <= static_cast<unsigned>(presses); ++i) {
      const auto x = static_cast<float>(i * step % 800);
      const auto y = static_cast<float>(i * (step + 74) % 600);
      const auto more = press_words(x, y, i % 2 == 0 ? 1 : 3);
      words.insert(words.end(), more.begin(), more.end());
    }
    xdo(words);
  };
  dismiss_opening();
  while (view.number("action") == 7) {
    move(400, 300);
    xdo({"click", "--repeat", "2", "--delay", "20", "1"});
    comes_true([](const View& v) { return v.number("action") != 7; }, Milliseconds(100));
  }
  storm(100, 137);  // during the deal
  wait_for_turn();
  move(kPile, 300);
  const int pile = view.number("pile");
  xdo({"click", "--repeat", "3", "--delay", "10", "1"});
  wait_for("drawn", 1);
  EXPECT_EQ(view.number("pile"), pile - 1);
  EXPECT_EQ(view.cards(1), 14);
  move(kStock, 300);
  xdo({"click", "--repeat", "3", "--delay", "10", "1"});
  move(260, 530);
  xdo({"click", "--repeat", "3", "--delay", "10", "1"});
  wait_until("the discard", [](const View& v) { return v.number("seat") != 1; });
  EXPECT_EQ(view.cards(1), 13) << "three fast presses throw one card away";
  storm(200, 211);  // during the computer seats' turns, and perhaps the next one of seat 1
  expect_still_running();
  for (int turn = 0; turn < 2 && !hand_is_over(); ++turn) {
    wait_until("seat 1", [&](const View& v) { return hand_is_over() || v.number("seat") == 1; });
    if (!hand_is_over() && view.number("drawn") == 0) draw(kStock);
    if (!hand_is_over()) {
      press_slot(1, 1);  // may only lower what the storm has raised
      press_slot(1, 1);
      wait_until("the discard", [](const View& v) { return v.number("seat") != 1; });
    }
  }
  expect_still_running();
}

}  // namespace
}  // namespace tombrello
