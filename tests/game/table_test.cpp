#include <algorithm>

#include "headless/headless_window.h"
#include "table/painted_table.h"
#include "tests/game/seen.h"

namespace tombrello {
namespace {

class TableTest : public testing::Test {
 protected:
  TableTest() {
    s_.nomi = {"TU", "OVEST", "NORD", "EST"};
    window_.surface().set_background(kFelt);
    window_.surface().set_font_name("Arial");
    for (int k = 1; k <= kCards; ++k) s_.mazzo[k] = static_cast<std::int16_t>(k);
  }
  void melds(int seat, std::initializer_list<int> entries) {
    s_.n_calate[seat] = static_cast<std::uint8_t>(entries.size());
    std::copy(entries.begin(), entries.end(), s_.calate[seat].begin() + 1);
  }
  Lines pictures() { return seen(window_.surface(), Kind::pictures); }
  Lines boxes() { return seen(window_.surface(), Kind::boxes); }
  Lines texts() { return seen(window_.surface(), Kind::texts); }

  State s_;
  Geometry m_;
  HeadlessTimer timer_;
  HeadlessWindow window_{timer_};
  PaintedTable table_{s_, m_, window_};
};

TEST_F(TableTest, WhatOneStripErasesOfAnotherComesBack) {
  // Thirteen and fourteen cards of seat 1's strip reach over seat 4's, which is twenty cards long.
  melds(1, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 1000, 14, 15, 16, 17, 18, 19, 20, 1000});
  melds(4, {27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 1000, 40, 41, 42, 43, 44, 45, 1000});
  table_.calo_carte(1);
  for (const int seat : {4, 1, 4, 1}) {
    table_.calo_carte(seat);
    EXPECT_EQ(pictures().size(), 38U) << "nothing twice, nothing gone";
    const Lines lines = seen(window_.surface());
    const std::string box = seat == 1 ? "box 290,358.5" : "box 561.5,150";
    const Lines above(std::find_if(lines.begin(), lines.end(),
                                   [&](const std::string& l) { return l.starts_with(box); }),
                      lines.end());
    const std::string ends[] = {"7♦ 530,358.5 590,452.75", "6♠ lying 561.5,306 655.75,366 turned"};
    for (const auto& end : ends) EXPECT_TRUE(has(above, end));
    EXPECT_EQ(above.back(), ends[seat == 1 ? 0 : 1]);
  }
}

// A moment before the hands are painted anew.
TEST_F(TableTest, DrawnCardsLandBehindTheHands) {
  s_.n_mano[1] = 13;
  table_.card_drawn(104);
  for (const int seat : {2, 3, 4}) table_.card_landed(seat, 60);
  EXPECT_EQ(pictures(), (Lines{"K♠ 510,485.75 570,580", "back1 lying 20,505 114.25,565",
                               "back1 636.7,20 696.7,114.25", "back1 lying 685.75,505 780,565"}));
}

TEST_F(TableTest, TheReshuffleLeavesNothingBehind) {
  melds(1, {1, 2, 3, 1000});
  melds(4, {40, 41, 42, 43, 44, 45, 46, 47, 48, 49, 1000});  // lies under the extra back
  table_.Posiziona_Players();
  table_.pile_shows(9);
  table_.calo_carte(1);
  table_.calo_carte(4);
  const Lines before = pictures();
  table_.reshuffle_message();
  table_.reshuffle_begins();
  EXPECT_TRUE(has(texts(), "'Rimescolo le carte del Pozzo' 350,390 Arial 8 green"));
  EXPECT_TRUE(has(pictures(), "back0 520,252.875 580,347.125"));
  EXPECT_FALSE(has(pictures(), before.front())) << "the pile is gone";
  table_.reshuffle_ends();
  EXPECT_FALSE(has(texts(), "Rimescolo"));
  EXPECT_TRUE(has(boxes(), "box 350,390 500,400 felt"));
  EXPECT_EQ(pictures(), Lines(before.begin() + 1, before.end())) << "melds over all boxes again";
}

TEST_F(TableTest, NamesShowWhoIsOnTurn) {
  s_.nomi = {"", "", "ÈÉÀÙÌÒÇ", "È"};
  s_.di_turno = 4;
  table_.Posiziona_Players();
  EXPECT_EQ(texts(), (Lines{"'ÈÉÀÙÌÒÇ' 370,124.25 Arial 8 green", "'È' 667.75,268 Arial 8 white"}));
  EXPECT_EQ(window_.surface().text_colour(), kWhite) << "the colour of seat 4's name stays";
  s_.azione = kDealerDraw;
  table_.Posiziona_Players();
  EXPECT_EQ(texts().size(), 2U) << "each lies exactly over the old one";
  EXPECT_FALSE(has(texts(), "white"));
}

TEST_F(TableTest, RepaintShowsWhatTheTableShowed) {
  s_.phase = Phase::hand;
  s_.tallone = kCards;
  s_.n_pozzo = 51;
  s_.pozzo.fill(9);
  s_.di_turno = 2;
  s_.n_mano = {0, 0, 5, 0, 0};
  const auto repainted = [&] {
    table_.repaint();
    return pictures();
  };
  const std::string stock = "back1 400,252.875 460,347.125";
  const std::string fifth_back = "back0 lying 20,230";
  EXPECT_TRUE(has(repainted(), stock)) << "the last card lies there";
  EXPECT_TRUE(has(repainted(), fifth_back));
  s_.holds_copy = true;
  EXPECT_FALSE(has(repainted(), fifth_back)) << "the pile's top is weighed, not held";
  EXPECT_EQ(pictures().size(), 6U) << "four backs, pile and stock";
  s_.stock_empty = true;
  EXPECT_FALSE(has(repainted(), stock)) << "the last card was drawn";
  s_.phase = Phase::felt;
  EXPECT_TRUE(repainted().empty()) << "after \"Continua\", before the deal";
}

TEST_F(TableTest, FromTheEleventhHandOnTheLastTenAreListed) {
  s_.squadre = {"TU-NORD", "OVEST-EST"};
  s_.numero_mano = 12;
  for (int row = 0; row <= kLastRow; ++row) s_.punti_mano[row][1] = static_cast<std::int16_t>(row);
  table_.scoreboard();
  ASSERT_EQ(texts().size(), 24U);
  EXPECT_EQ(texts()[2], "'3    1' 220,175+1 Arial 7.8 white");
  EXPECT_EQ(texts()[20], "'12    10' 220,175+10 Arial 7.8 white");
}

TEST_F(TableTest, ThePanelGrowsToBothSides) {
  table_.panel_line();
  EXPECT_EQ(boxes(), (Lines{"box 400,170 401,410 green"}));
  table_.panel_opens();
  EXPECT_LE(window_.milliseconds_shown(), 500);
  EXPECT_GE(window_.milliseconds_shown(), 200) << "a person sees it grow";
  EXPECT_EQ(boxes(), (Lines{"box 390,170 410,180 felt", "box 201,170 400,410 green",
                            "box 400,170 599,410 green"}));
}

}  // namespace
}  // namespace tombrello
