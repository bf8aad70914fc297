#include <gtest/gtest.h>

#include "match/dead_hand.h"
#include "match/state_check.h"
#include "tests/rules/deal.h"
#include "tools/simulation/tally.h"

namespace tombrello::test {
namespace {

constexpr int kMostTurns = 2000;

// Whatever seat 1 does, the state stays whole after every turn, and hands come to their end.
TEST(Simulation, TwoThousandHandsWithEachKindOfPlayerStayWhole) {
  for (const ScriptKind kind : {ScriptKind::simple, ScriptKind::melder, ScriptKind::wild}) {
    SCOPED_TRACE(static_cast<int>(kind));
    Simulation simulation(kind, 1);
    int unfinished = 0;
    int reshuffles = 0;
    for (int hand = 1; hand <= 2000; ++hand) {
      const auto result = simulation.play_hand(kMostTurns, true);
      ASSERT_EQ(result.fault, "") << "hand " << hand << ", turn " << result.turns;
      unfinished += !result.finished;
      reshuffles += result.reshuffles;
    }
    EXPECT_LT(unfinished, 20) << "a hand that nobody can end is a rarity";
    EXPECT_GT(reshuffles, 50);
  }
}

// One number stands for 300 hands, turn by turn. A commit that changes how the game is played
// changes it on purpose, and says so.
TEST(Simulation, TheSignatureOfThreeHundredHands) {
  Simulation simulation(ScriptKind::melder, 1);
  Simulation beside_it(ScriptKind::melder, 1);
  Simulation another(ScriptKind::melder, 2);
  for (int hand = 0; hand < 300; ++hand) {
    simulation.play_hand(kMostTurns, false);
    another.play_hand(kMostTurns, false);
    beside_it.play_hand(kMostTurns, false);
  }
  EXPECT_EQ(simulation.signature(), 8666049454377884777U);
  EXPECT_EQ(beside_it.signature(), simulation.signature());
  EXPECT_NE(another.signature(), simulation.signature());
}

// A hand that was broken off has no row of its own: past the tenth hand, the last row is still
// that of the hand before.
TEST(Tally, ScoresAreThoseOfFinishedHands) {
  State s;
  s.numero_mano = 12;
  s.punti_mano[10] = {0, 100, -20};
  Tally tally;
  tally.add({.turns = 40, .finished = true}, s);
  tally.add({.turns = 2000}, s);
  EXPECT_EQ(tally.score, (std::array<long, 3>{0, 100, -20}));
  EXPECT_EQ(tally.unfinished, 1);
  EXPECT_EQ(tally.turns(), 2040);
  EXPECT_EQ(tally.turns_at(100), 2000);
}

// Nobody can go out any more once no card in play fits the table and nobody holds enough for a
// new meld: the person two cards, a computer seat four.
TEST(DeadHand, IsOneThatNobodyCanEnd) {
  const struct {
    const char* hands[4];
    const char* own;  // seat 2's melds
    const char* stock;
    bool dead;
  } kCases[] = {
      {{"Ah", "Ah 3s 5d", "Ah 3s 5d", "Ah 3s 5d"}, "7h 7d 7c 7s", "7h Jd", true},
      {{"Ah", "Ah", "Ah", "Ah"}, "", "7h Jd", true},
      {{"Ah 2h", "Ah", "Ah", "Ah"}, "", "7h Jd", false},
      {{"Ah", "Ah 3s 5d 9c", "Ah", "Ah"}, "", "7h Jd", false},
      {{"Ah", "Ah", "Ah", "6h' 8s"}, "3h 4h 5h", "Jd", false},
      {{"Ah", "Ah", "Ah", "6s 2s"}, "3h 4h 5h", "Jd", true},
      {{"Ah", "Ah", "Ah", "Ah"}, "3h 4h 5h", "9d 2h'", false},
      {{"Ah", "Ah", "Ah", "Ah"}, "8s 9s 10s Js Qs", "9d 3d", false},  // the King on the pile
      {{"Ah", "Ah", "Ah", "Ah"}, "7h 7d 7c 7s | 9h 9c 9s", "9d' 3d", false},
      {{"Ah", "Ah", "Ah", "Ah"}, "9h 9c 9s", "9c' 8d", true},
      {{"2h", "2h", "2h", "2h"}, "Ks As 2s 3s 4s 5s 6s 7s 8s 9s 10s Js Qs Kd", "Kh Kc", true},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(testing::Message() << c.own << " stock " << c.stock);
    Deal d;
    for (int seat = 1; seat <= 4; ++seat) d.hand(seat, c.hands[seat - 1]);
    d.table(2, c.own);
    d.pile("Ks");
    d.stock(c.stock);
    EXPECT_EQ(nobody_can_go_out(d.s), c.dead);
  }
}

// The check itself finds what it is there for.
TEST(StateCheck, FindsBrokenStates) {
  Simulation simulation(ScriptKind::melder, 1);
  while (simulation.state().n_calate[2] == 0 || simulation.state().n_pozzo < 3) {
    simulation.play_hand(30, true);
  }
  const State whole = simulation.state();
  ASSERT_EQ(check_state(whole, {}), "");
  const std::vector<std::pair<const char*, std::function<void(State&)>>> kFaults = {
      {"a card changed into another", [](State& s) { s.pozzo[0] = s.pozzo[0] % 52 + 1; }},
      {"a stock card skipped", [](State& s) { ++s.tallone; }},
      {"stock below its first slot", [](State& s) { s.tallone = 53; }},
      {"too many cards in a hand", [](State& s) { s.n_mano[3] = 14; }},
      {"a card still selected", [](State& s) { s.mano[1][1] = 1003; }},
      {"a left-over behind the hand", [](State& s) { s.mano[1][14] = 3; }},
      {"a stale presence string", [](State& s) { s.presenze[2].clear(); }},
      {"a list that is too long", [](State& s) { s.n_calate[2] = 31; }},
      {"a list that isn't closed", [](State& s) { --s.n_calate[2]; }},
      {"a meld of two", [](State& s) { s.calate[2][3] = kSentinel; }},
      {"something at position 0", [](State& s) { s.calate[2][0] = 5; }},
      {"a card both drawn and left", [](State& s) { s.mano[1][++s.n_mano[1]] = s.pozzo[0]; }},
  };
  for (const auto& [what, breaks] : kFaults) {
    State broken = whole;
    breaks(broken);
    EXPECT_NE(check_state(broken, {}), "") << what;
  }
  // A hand may end without a discard, but only then.
  State no_discard = whole;
  no_discard.calate[2][no_discard.n_calate[2]++] = no_discard.pozzo[--no_discard.n_pozzo];
  no_discard.calate[2][no_discard.n_calate[2]] = kSentinel;
  EXPECT_NE(check_state(no_discard, {}), "");
  EXPECT_EQ(check_state(no_discard, {.hand_over = true}), "");
}

}  // namespace
}  // namespace tombrello::test
