#include <algorithm>

#include "player.h"

namespace tombrello {
namespace {

using Table = PlayingSession;

constexpr int kPanelGreen = 0x00C000;
constexpr int kFeltGreen = 0x007000;

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
  start_quick({.clock = find_clock([&](const Fortune& f) {
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
  begin({.clock = find_clock([&](const Fortune& f) {
           return f.dealer == 4 && find_long_run(f.hand()).size() >= 4;
         })});
  wait_for_turn();
  press_slot(3, 3);  // before the draw nothing rises
  press_slot(3, 1);  // nor is anything thrown away
  const int on_pile = view.number("top");
  draw(kPile);
  EXPECT_EQ(view.cards(1), 14);
  EXPECT_EQ(view.hand().back(), on_pile);
  EXPECT_EQ(view.number("pile"), 0);
  EXPECT_EQ(pixel(settled_shot(), kPile, 300), kFeltGreen);

  const auto hand = view.hand();
  select({2, 5});
  EXPECT_NE(pixel(settled_shot(), 275, 470), kFeltGreen) << "a raised card shows";
  press_slot(1, 1);
  wait_until("all down", [&](const View& v) { return v.hand() == hand; });
  EXPECT_EQ(view.number("seat"), 1) << "the press lowered the cards and threw none away";

  const auto run = find_long_run(hand);
  for (const auto& refused : {std::vector{1, 2}, {run[0], run[1], run[3]}}) {
    select(refused);
    lay();
    EXPECT_EQ(view.text("melds1"), "") << "two cards, or a run with a gap";
  }
  const auto sorted = find_long_run(view.hand());
  const int fourth = view.hand().at(static_cast<std::size_t>(sorted[3] - 1));
  select({sorted[0], sorted[1], sorted[2]});
  lay();
  EXPECT_EQ(view.numbers("melds1").size(), 4U);
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
  expect_still_running();
}

// Whatever is pressed while others play is lost, and of three fast presses one counts.
TEST_F(Table, ImpatientPressesUpsetNothing) {
  begin({.clock = find_clock([](const Fortune& f) { return f.dealer == 4; }), .turns = 100});
  const auto press_thrice = [&](float x, float y) {
    move(x, y);
    xdo({"click", "--repeat", "3", "--delay", "10", "1"});
  };
  const int pile = view.number("pile");
  for (int tries = 0; tries < 5 && view.number("drawn") == 0; ++tries) {
    press_thrice(kPile, 300);
    comes_true([](const View& v) { return v.number("drawn") == 1; }, Milliseconds(800));
  }
  EXPECT_EQ(view.number("pile"), pile - 1);
  EXPECT_EQ(view.cards(1), 14);
  press_thrice(kStock, 300);
  press_thrice(260, 530);
  wait_until("the discard", [](const View& v) { return v.number("seat") != 1; });
  EXPECT_EQ(view.cards(1), 13);
  std::vector<std::string> words;
  for (int i = 1; i <= 200; ++i) {
    const auto more = press_words(static_cast<float>(i * 211 % 800),
                                  static_cast<float>(i * 285 % 600), i % 2 == 0 ? 1 : 3);
    words.insert(words.end(), more.begin(), more.end());
  }
  xdo(words);
  expect_still_running();
  wait_until("seat 1", [](const View& v) { return v.number("seat") == 1; });
  if (view.number("drawn") == 0) draw(kStock);
  for (int presses = 0; presses < 2; ++presses) press_slot(1, 1);  // one may only lower
  wait_until("the discard", [](const View& v) { return v.number("seat") != 1; });
  expect_still_running();
}

}  // namespace
}  // namespace tombrello
