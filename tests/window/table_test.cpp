#include <algorithm>

#include "player.h"

namespace tombrello {
namespace {

using Table = PlayingSession;

constexpr int kPanelGreen = 0x00C000;
constexpr int kFeltGreen = 0x007000;

TEST_F(Table, AWholeHandFromTheDrawToTheNextDeal) {
  start_quick({.clock = kSeat4Deals, .turns = 5});
  dismiss_opening();
  EXPECT_EQ(view.number("names"), 1);
  turn_up(1, 1);
  EXPECT_EQ(view.number("names"), 0) << "names can be given until the first card";
  turn_up(2, 4);
  wait_for("pile", 1);
  EXPECT_EQ(view.number("dealer"), 4);
  EXPECT_EQ(view.numbers("n"), (std::vector<int>{13, 13, 13, 13}));
  EXPECT_EQ(view.number("replay"), 0);
  EXPECT_EQ(view.number("continue"), 0);

  play_hand(true);
  const auto totals = view.numbers("totals");
  EXPECT_NE(totals, (std::vector<int>{0, 0}));
  EXPECT_EQ(pixel(settled_shot(), 210, 400), kPanelGreen);
  ASSERT_EQ(view.number("continue"), 1) << "no single hand decides this match";

  const auto deck = view.numbers("deck");
  press_screen("Partita");
  press_screen("Continua");
  wait_for("round", 2);
  EXPECT_EQ(view.number("dealer"), 1);
  wait_for("pile", 1);
  EXPECT_EQ(view.numbers("totals"), totals);
  EXPECT_NE(view.numbers("deck"), deck);
  EXPECT_EQ(pixel(settled_shot(), 210, 400), kFeltGreen);
  expect_still_running();
}

// The opening, the draw for dealer, every turn and every count: Tab to a place, Enter there.
TEST_F(Table, AMatchIsPlayedWithKeysAlone) {
  start_quick({.clock = kShortMatch, .turns = 2});
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

// The person opens, and holds four cards in a run.
TEST_F(Table, MeldsAdditionsAndDiscards) {
  begin({.clock = kRunInHand});
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

  // Spades by their ranks, wherever they lie now.
  const auto select_spades = [&](const std::vector<int>& ranks) {
    const auto held = view.hand();
    for (const int rank : ranks) {
      const auto at = std::find_if(held.begin(), held.end(), [&](int card) {
        return first_pack_twin(card) == card_of(4, rank);
      });
      select({static_cast<int>(at - held.begin()) + 1});
    }
  };
  for (const auto& refused : {std::vector{2, 3}, {2, 3, 5}}) {
    select_spades(refused);
    lay();
    EXPECT_EQ(view.text("melds1"), "") << "two cards, or a run with a gap";
  }
  select_spades({2, 3, 4});
  lay();
  EXPECT_EQ(view.numbers("melds1").size(), 4U);
  EXPECT_NE(pixel(settled_shot(), 300, 400), kFeltGreen);
  select_spades({5});
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
  begin({.clock = kSeat4Deals, .turns = 100});
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
