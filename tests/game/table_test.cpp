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
  void hand(int seat, std::initializer_list<int> cards) {
    s_.n_mano[seat] = static_cast<std::uint8_t>(cards.size());
    std::copy(cards.begin(), cards.end(), s_.mano[seat].begin() + 1);
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

TEST_F(TableTest, TheHandStandsInItsFanASelectedCardHigher) {
  hand(1, {1, 1066, 104});
  table_.ridisegno_carte();
  EXPECT_EQ(pictures(), (Lines{"carta1 250,485.75 310,580", "carta14 270,460.75 330,555",
                               "carta52 290,485.75 350,580"}));
  EXPECT_EQ(boxes(), (Lines{"box 250,460.75 570,580 felt"}));
  EXPECT_EQ(texts().size(), 10U) << "and the names: two lines, eight letters";

  hand(1, {});
  for (int k = 1; k <= 14; ++k) s_.mano[1][k] = static_cast<std::int16_t>(kSelected + k);
  s_.n_mano[1] = 14;
  table_.ridisegno_carte();
  EXPECT_EQ(pictures().back(), "carta14 510,460.75 570,555") << "the box ends where the fan does";
  s_.n_mano[1] = 0;
  table_.ridisegno_carte();
  EXPECT_TRUE(pictures().empty()) << "raised cards are erased as well";
}

TEST_F(TableTest, BacksFollowTheSlotsOfTheDeckNotTheCards) {
  s_.mazzo[1] = 90;
  s_.mazzo[2] = 3;
  for (int seat = 1; seat <= kSeats; ++seat) hand(seat, {5, 70});
  table_.ridisegno_dorsi(1);
  EXPECT_TRUE(window_.surface().items().empty());
  table_.ridisegno_dorsi(2);
  table_.ridisegno_dorsi(3);
  table_.ridisegno_dorsi(4);
  EXPECT_EQ(
      seen(window_.surface()),
      (Lines{"box 0,245 114.25,585 felt", "dorsoo1 20,150 114.25,210", "dorsoo0 20,170 114.25,230",
             "box 250,19 570,114.25 felt", "dorsov1 250,20 310,114.25", "dorsov0 270,20 330,114.25",
             "box 685.75,245 780,585 felt", "dorsoo1 685.75,150 780,210",
             "dorsoo0 685.75,170 780,230"}));
  hand(2, {5});
  table_.ridisegno_dorsi(2);
  EXPECT_TRUE(has(pictures(), "dorsoo0 20,170 114.25,230"))
      << "the box begins at 245: the old second back stays";
}

TEST_F(TableTest, StripsKeepAPlaceForEachSentinel) {
  for (int seat = 1; seat <= kSeats; ++seat) melds(seat, {1, 2, 3, 1000, 40, 41, 94, 1000});
  table_.calo_carte(1);
  EXPECT_EQ(seen(window_.surface()),
            (Lines{"box 290,358.5 610,452.75 felt", "carta1 290,358.5 350,452.75",
                   "carta2 302,358.5 362,452.75", "carta3 314,358.5 374,452.75",
                   "carta40 338,358.5 398,452.75", "carta41 350,358.5 410,452.75",
                   "carta42 362,358.5 422,452.75"}));
  for (const auto& [seat, box, first, last] :
       {std::tuple{3, "box 290,147.25 610,241.5 felt", "carta1 290,147.25 350,241.5",
                   "carta42 362,147.25 422,241.5"},
        {2, "box 144.25,150 238.5,470 felt", "cartao1 144.25,90 238.5,150 turned",
         "cartao42 144.25,162 238.5,222 turned"},
        {4, "box 561.5,150 655.75,470 felt", "cartao1 561.5,90 655.75,150 turned",
         "cartao42 561.5,162 655.75,222 turned"}}) {
    window_.surface().clear();
    s_.n_calate = {};
    s_.n_calate[seat] = 8;
    table_.calo_carte(seat);
    EXPECT_EQ(boxes(), (Lines{box}));
    EXPECT_EQ(pictures().size(), 6U);
    EXPECT_EQ(pictures().front(), first);
    EXPECT_EQ(pictures().back(), last);
  }
}

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
    const std::string ends[] = {"carta20 530,358.5 590,452.75",
                                "cartao45 561.5,306 655.75,366 turned"};
    for (const auto& end : ends) EXPECT_TRUE(has(above, end));
    EXPECT_EQ(above.back(), ends[seat == 1 ? 0 : 1]);
  }
}

TEST_F(TableTest, OpenCardsAtTheEndOfAHand) {
  hand(1, {9});
  hand(2, {5, 70});
  hand(3, {6, 71});
  hand(4, {7, 72});
  table_.scopro_carte();
  EXPECT_EQ(seen(window_.surface()),
            (Lines{"box 20,245 114.25,305 felt", "cartao5 20,245 114.25,305 turned",
                   "box 20,265 114.25,325 felt", "cartao18 20,265 114.25,325 turned",
                   "box 376.7,20 436.7,114.25 felt", "carta6 376.7,20 436.7,114.25",
                   "box 396.7,20 456.7,114.25 felt", "carta19 396.7,20 456.7,114.25",
                   "box 685.75,245 780,305 felt", "cartao7 685.75,245 780,305",
                   "box 685.75,265 780,325 felt", "cartao20 685.75,265 780,325"}));
  window_.surface().clear();
  s_.n_mano = {};
  table_.scopro_carte();
  EXPECT_TRUE(window_.surface().items().empty());
}

TEST_F(TableTest, DealtDrawnAndLandingCards) {
  s_.n_mano[1] = 13;
  table_.card_dealt(1, 13, 53);
  table_.card_dealt(2, 13, 53);
  table_.card_dealt(3, 13, 52);
  table_.card_dealt(4, 13, 52);
  table_.card_drawn(104);
  for (const int seat : {2, 3, 4}) table_.card_landed(seat, 60);
  EXPECT_EQ(pictures(), (Lines{"carta1 490,485.75 550,580", "dorsoo1 20,390 114.25,450",
                               "dorsov0 490,20 550,114.25", "dorsoo0 685.75,390 780,450",
                               "carta52 510,485.75 570,580", "dorsoo1 20,505 114.25,565",
                               "dorsov1 636.7,20 696.7,114.25", "dorsoo1 685.75,505 780,565"}));
  s_.n_mano = {};
  for (const int seat : {2, 3, 4}) table_.ridisegno_dorsi(seat);
  EXPECT_TRUE(has(pictures(), "dorsov1 636.7,20 696.7,114.25")) << "seat 3's stays";
  EXPECT_FALSE(has(pictures(), "dorsoo1 20,505 114.25,565"));
  EXPECT_FALSE(has(pictures(), "dorsoo1 685.75,505 780,565"));
}

TEST_F(TableTest, StockAndPileTouch) {
  table_.pile_shows(66);
  table_.stock_shows(1);
  EXPECT_EQ(pictures(),
            (Lines{"carta14 340,252.875 400,347.125", "dorsov1 400,252.875 460,347.125"}));
  table_.pile_empty();
  table_.stock_empty();
  EXPECT_EQ(seen(window_.surface()),
            (Lines{"box 340,252.875 400,347.125 felt", "box 400,252.875 460,347.125 felt"}));
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
  EXPECT_TRUE(has(pictures(), "dorsov0 520,252.875 580,347.125"));
  EXPECT_FALSE(has(pictures(), before.front())) << "the pile is gone";
  table_.reshuffle_ends();
  EXPECT_FALSE(has(texts(), "Rimescolo"));
  EXPECT_EQ(pictures(), Lines(before.begin() + 1, before.end())) << "melds over all boxes again";
}

TEST_F(TableTest, NamesShowWhoIsOnTurn) {
  s_.di_turno = 2;
  table_.Posiziona_Players();
  EXPECT_EQ(texts(), (Lines{"'TU' 370,464.9 Arial 8 green", "'NORD' 370,124.25 Arial 8 green",
                            "'O' 124.25,268 Arial 8 white", "'V' 124.25,286 Arial 8 white",
                            "'E' 124.25,304 Arial 8 white", "'S' 124.25,322 Arial 8 white",
                            "'T' 124.25,340 Arial 8 white", "'E' 667.75,268 Arial 8 green",
                            "'S' 667.75,286 Arial 8 green", "'T' 667.75,304 Arial 8 green"}));
  s_.azione = kDealerDraw;
  table_.Posiziona_Players();
  EXPECT_EQ(texts().size(), 10U) << "each lies exactly over the old one";
  EXPECT_FALSE(has(texts(), "white"));
  window_.surface().clear();
  s_.nomi = {"", "", "ÈÉÀÙÌÒÇ", "È"};
  s_.azione = kNoAction;
  s_.di_turno = 4;
  table_.Posiziona_Players();
  EXPECT_EQ(texts(), (Lines{"'ÈÉÀÙÌÒÇ' 370,124.25 Arial 8 green", "'È' 667.75,268 Arial 8 white"}));
  EXPECT_EQ(window_.surface().font_size(), 8);
  EXPECT_EQ(window_.surface().text_colour(), kWhite) << "the colour of seat 4's name stays";
}

TEST_F(TableTest, EverythingFollowsTheScaleButTheAbsolutePlaces) {
  m_ = Geometry::at_scale(0.8F);
  hand(1, {1001});
  hand(2, {5});
  hand(3, {6});
  hand(4, {7});
  melds(2, {1, 2, 3, 1000});
  table_.ridisegno_carte();
  table_.ridisegno_dorsi(2);
  table_.calo_carte(2);
  table_.pile_shows(9);
  table_.card_landed(3, 9);
  EXPECT_EQ(pictures(),
            (Lines{"carta1 280,479.6 328,555", "dorsoo0 20,180 95.4,228",
                   "cartao1 125.4,132 200.8,180 turned", "cartao2 125.4,141.6 200.8,189.6 turned",
                   "cartao3 125.4,151.2 200.8,199.2 turned", "carta9 352,262.3 400,337.7",
                   "dorsov0 584.7,20 632.7,95.4"}));
  EXPECT_EQ(boxes(), (Lines{"box 280,479.6 536,580 felt", "box 0,245 95.4,517 felt",
                            "box 125.4,180 200.8,436 felt"}));
  EXPECT_TRUE(has(texts(), "'TU' 376,487.52 Arial 8 green"));
  EXPECT_TRUE(has(texts(), "'E' 686.6,268 Arial 8 green"));
  window_.surface().clear();
  table_.scopro_carte();
  EXPECT_EQ(pictures(), (Lines{"cartao5 20,245 95.4,293 turned", "carta6 376.7,20 424.7,95.4",
                               "cartao7 704.6,245 780,293"}));
}

TEST_F(TableTest, TheDealersScreen) {
  s_.azione = kDealerDraw;
  s_.x_estrazione = {0, 370, 20, 370, 720};
  s_.y_estrazione = {0, 485.75F, 252.875F, 20, 252.875F};
  table_.dealer_screen();
  const Lines lines = texts();
  ASSERT_EQ(lines.size(), 13U);
  EXPECT_EQ(lines[0], "'Tombrello' 500,20 Brush Script MT 24 white");
  EXPECT_EQ(lines[1], "'by Frassivo' 500,20+1 Arial 8 white");
  EXPECT_EQ(lines[2], "'TU' 370,464.9 Arial 8 green");
  EXPECT_EQ(lines[12], "'Scelta cartaro - Clicca sul mazzo' 5,5 Arial 9 white");
  table_.dealer_deck(1);
  for (int seat = 1; seat <= kSeats; ++seat) table_.dealer_card(seat, 60);
  EXPECT_EQ(pictures(), (Lines{"dorsov1 370,252.875 430,347.125", "carta8 370,485.75 430,580",
                               "carta8 20,252.875 80,347.125", "carta8 370,20 430,114.25",
                               "carta8 720,252.875 780,347.125"}));
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
  const std::string stock = "dorsov1 400,252.875 460,347.125";
  const std::string fifth_back = "dorsoo0 20,230";
  EXPECT_TRUE(has(repainted(), stock)) << "the last card lies there";
  EXPECT_TRUE(has(repainted(), fifth_back));
  s_.holds_copy = true;
  EXPECT_FALSE(has(repainted(), fifth_back)) << "the pile's top is weighed, not held";
  s_.stock_empty = true;
  EXPECT_FALSE(has(repainted(), stock)) << "the last card was drawn";
  s_.phase = Phase::felt;
  EXPECT_TRUE(repainted().empty()) << "after \"Continua\", before the deal";
}

class ScoreboardTest : public TableTest {
 protected:
  void play(int hands) {
    s_.numero_mano = static_cast<std::int16_t>(hands);
    s_.squadre = {"TU-NORD", "OVEST-EST"};
    s_.punti_totali = {0, 345, -20};
    for (std::size_t row = 0; row < s_.punti_mano.size(); ++row) {
      s_.punti_mano[row] = {0, static_cast<std::int16_t>(row * 10), static_cast<std::int16_t>(-5)};
    }
    table_.Posiziona_Players();
    window_.surface().clear();
    table_.scoreboard();
  }
};

TEST_F(ScoreboardTest, LabelsHandsAndTotalsFlowDown) {
  play(3);
  EXPECT_EQ(texts(),
            (Lines{"'Game    TU-NORD' 220,175 Arial 8 blue", "'OVEST-EST' 490,175 Arial 8 blue",
                   "'1    10' 220,175+1 Arial 8 white", "'-5' 490,175+1 Arial 8 white",
                   "'2    20' 220,175+2 Arial 8 white", "'-5' 490,175+2 Arial 8 white",
                   "'3    30' 220,175+3 Arial 8 white", "'-5' 490,175+3 Arial 8 white",
                   "'      345' 220,175+4 Arial 8 black", "'-20' 490,175+4 Arial 8 black"}));
  EXPECT_EQ(window_.surface().text_colour(), kWhite);
  play(0);
  EXPECT_EQ(texts().size(), 4U) << "a replayed first hand has no line of its own";
}

TEST_F(ScoreboardTest, FromTheEleventhHandOnTheLastTenAreListed) {
  play(12);
  ASSERT_EQ(texts().size(), 24U);
  EXPECT_EQ(texts()[2], "'3    10' 220,175+1 Arial 8 white");
  EXPECT_EQ(texts()[20], "'12    100' 220,175+10 Arial 8 white");
}

TEST_F(ScoreboardTest, ThePanelGrowsToBothSides) {
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
