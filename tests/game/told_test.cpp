#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "tests/game/game.h"
#include "tests/rules/cards.h"
#include "told/refusals.h"

namespace tombrello {
namespace {

std::vector<std::int16_t> some(const std::string& names) {
  const auto codes = test::cards(names);
  return {codes.begin(), codes.end()};
}

class ChronicleTest : public testing::Test {
 protected:
  ChronicleTest() {
    s_.nomi = {"TU", "OVEST", "NORD", "EST"};
    s_.squadre = {"TU-NORD", "OVEST-EST"};
    s_.phase = Phase::hand;
    s_.di_turno = 2;
  }
  std::string now() {
    chronicle_.show(false);
    return window_.told_now;
  }
  std::string then() {
    chronicle_.show(false);
    return window_.told_then;
  }

  State s_;
  HeadlessTimer timer_;
  HeadlessWindow window_{timer_};
  Chronicle chronicle_{s_, window_};
};

TEST_F(ChronicleTest, TellsWhatTheOthersDidSinceTheOwnDiscard) {
  chronicle_.drew(4, 0);
  chronicle_.discarded(4, 1);
  chronicle_.drew(1, 0);
  chronicle_.laid(1, 1, some("2h 3h 4h"));
  chronicle_.discarded(1, 5);
  EXPECT_EQ(then(), "") << "the player's own deeds are known";
  s_.di_turno = 1;
  s_.n_mano[1] = 13;
  EXPECT_EQ(now(), "Gioca OVEST") << "with the discard the own turn is over";
  chronicle_.drew(2, 35);
  chronicle_.laid(2, 2, some("6h 7h 8h"));
  chronicle_.discarded(2, 35);
  chronicle_.drew(3, 0);
  chronicle_.discarded(3, 1);
  chronicle_.reshuffled();
  chronicle_.drew(4, 0);
  chronicle_.added(4, 2, 43);
  chronicle_.discarded(4, 15);
  EXPECT_EQ(then(),
            "OVEST: Pozzo, cala 6♥ 7♥ 8♥, scarta 9♣ · NORD: Tallone, scarta A♥ · il Pozzo si "
            "rimescola · EST: Tallone, attacca 4♠, scarta 2♦");
  chronicle_.reshuffled();
  chronicle_.drew(4, 0);
  EXPECT_TRUE(then().ends_with(" · il Pozzo si rimescola · EST: Tallone"));
  chronicle_.discarded(1, 5);
  chronicle_.drew(4, 0);
  EXPECT_EQ(then(), "EST: Tallone");
  chronicle_.went_out(4);
  chronicle_.counted_double(2);
  EXPECT_TRUE(then().ends_with(" · EST chiude · punti raddoppiati per OVEST-EST"));
}

TEST_F(ChronicleTest, ARemarkGoesWithItsMoment) {
  s_.di_turno = 1;
  s_.ha_pescato = true;
  s_.n_mano[1] = 14;
  s_.mano[1].fill(1);
  s_.mano[1][1] = 1 + kSelected;
  const std::string own_turn = now();
  s_.mano[1][1] = 1;
  chronicle_.refused(Refusal::two_cards, some("Ah 2h"), {});
  const std::string refusal = now();
  EXPECT_TRUE(refusal.starts_with("Due carte da sole")) << refusal;
  EXPECT_EQ(now(), refusal);
  s_.mano[1][1] = 1 + kSelected;
  EXPECT_EQ(now(), own_turn);
  const std::vector<std::function<void()>> ends = {
      [&] { chronicle_.hand_dealt(); }, [&] { chronicle_.drew(2, 0); },
      [&] { chronicle_.discarded(1, 5); }, [&] { chronicle_.went_out(1); }};
  for (const auto& end : ends) {
    chronicle_.remark(refusal);
    end();
    EXPECT_NE(now(), refusal);
  }
  EXPECT_EQ(now(), "Gioca OVEST") << "with the discard the own turn is over";
  EXPECT_EQ(then(), "hai chiuso");
  chronicle_.hand_dealt();
  EXPECT_EQ(now(), own_turn);
  s_.ha_pescato = false;
  EXPECT_NE(now(), own_turn);
}

TEST(Tie, IsSaidWhileItsBoxStands) {
  Game game(1);
  std::string said;
  game.window.on_box = [&] { said = game.window.told_now + " " + game.window.told_then; };
  game.dismiss().press_deck(4).then([&] {
    EXPECT_TRUE(game.window.told_now.starts_with("Scelta del cartaro")) << game.window.told_now;
  });
  game.play();
  EXPECT_TRUE(said.starts_with("Parità")) << said;
  EXPECT_NE(said.find(" · TU "), said.npos) << said;
}

// Every card, runs and sets of every rank, and what is said of proposals.
TEST(Names, AndRefusalsReadAsTheyDid) {
  std::string text;
  for (int card = 1; card <= kPack; ++card) {
    text += short_name(card) + " " + long_name(card) + "\n";
  }
  const auto of_rank = [](int rank, const char* suit) {
    return test::kRankNames[(rank - 1) % kRanks + 1] + std::string(suit) + " ";
  };
  for (int rank = 1; rank <= kRanks; ++rank) {
    const std::string run = of_rank(rank, "c") + of_rank(rank + 1, "c") + of_rank(rank + 2, "c");
    const std::string set = of_rank(rank, "h") + of_rank(rank, "d") + of_rank(rank, "s");
    for (const std::string& meld : {run, set, set + of_rank(rank, "c")}) {
      text += meld_name(some(meld)) + "\n";
    }
  }
  for (const Refusal why : {Refusal::two_cards, Refusal::no_meld_yet, Refusal::list_full,
                            Refusal::beside_melds, Refusal::does_not_fit, Refusal::lowered_first}) {
    text += sentence_of(why, some("10s"), some("6c 7c 8c")) + "\n";
  }
  for (const char* proposal :
       {"6h 8h 9h", "Qh Kh 2h", "2h 6h 9h", "6h 9h 10h", "6h 7h 8d", "6h 7h 8h Jd", "6h 6h 7h 8h",
        "7h 7h 8h 8h 9h 9h", "6h 6d 7s", "6h 6d 6d", "6h 6d 6s 7h", "6h 9d 10s", "6h 7h Jd",
        "6h 9h 8d", "6h 6h 7d", "6h 7h 8h", "6h 6d 6s", "Qh Kh Ah",
        "Ah 2h 3h 4h 5h 6h 7h 7h 8h 9h 10h Jh Qh Kh"}) {
    const auto cards = some(proposal);
    text += short_names(cards) + ": " + sentence_of(Refusal::not_a_meld, cards, {}) + "\n";
  }
  expect_golden("names.txt", text);
}

// A pause passes at once while the space bar is down, the one that runs too.
TEST(Keys, SpaceHurriesTheOthers) {
  Game game;
  int pauses = 0;
  int slow = 0;
  int quick = 0;
  game.window.on_pass = [&] {
    if (!game.timer.running() || game.s().phase != Phase::deal) return;
    const bool held = ++pauses > 10 && pauses < 40;
    if (pauses == 11 || pauses == 40) game.window.hold(Key::space, held);
    if (held && game.timer.period() == 0) ++quick;
    if (!held && game.timer.period() > 0) ++slow;
  };
  game.dismiss().press_deck(4).until_own_turn().play();
  EXPECT_EQ(quick, 29) << "the pause in which it went down too";
  EXPECT_GT(slow, 10);
  EXPECT_TRUE(game.window.places.empty()) << "nobody listens";
}

}  // namespace
}  // namespace tombrello
