#include "player.h"

namespace tombrello {
namespace {

using Table = PlayingSession;

constexpr int kPanelGreen = 0x00C000;
constexpr int kFeltGreen = 0x007000;

TEST_F(Table, AWholeHandFromTheDrawToTheNextDeal) {
  begin({.clock = kSeat4Deals, .turns = 5});
  EXPECT_EQ(view.number("dealer"), 4);
  EXPECT_EQ(view.numbers("n"), (std::vector<int>{13, 13, 13, 13}));
  EXPECT_EQ(view.number("continue"), 0);

  play_hand(true);
  const auto totals = view.numbers("totals");
  EXPECT_NE(totals, (std::vector<int>{0, 0}));
  wait_for_colour(210, 400, kPanelGreen);
  ASSERT_EQ(view.number("continue"), 1) << "no single hand decides this match";

  const auto deck = view.numbers("deck");
  press_screen("Partita");
  press_screen("Continua");
  wait_for("round", 2);
  EXPECT_EQ(view.number("dealer"), 1);
  wait_for("pile", 1);
  EXPECT_EQ(view.numbers("totals"), totals);
  EXPECT_NE(view.numbers("deck"), deck);
  wait_for_colour(210, 400, kFeltGreen);
  close_by_frame();
  expect_quiet_end();
}

// The opening, the draw for dealer, every turn and every count.
TEST_F(Table, AMatchIsPlayedWithKeysAlone) {
  start_quick({.clock = kShortMatch, .turns = 2});
  play_match_by_keys();
  EXPECT_GT(view.number("round"), 1) << "Enter went on after a count";
  close_by_frame();
  expect_quiet_end();
}

}  // namespace
}  // namespace tombrello
