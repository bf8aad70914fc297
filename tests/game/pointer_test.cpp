#include "shell/pointer.h"

#include <cmath>
#include <functional>

#include "headless/headless_window.h"
#include "tests/game/seen.h"

namespace tombrello {
namespace {

constexpr float kFar = 10000;

class PointerTest : public testing::Test {
 protected:
  PointerTest() {
    window_.add_entry(personalize_players, kMenuBar, "");
    panels_.create();
    names_.create();
    window_.surface().set_background(kFelt);
    s_.di_turno = 1;
    s_.n_mano[1] = 13;
    for (int k = 1; k <= kCards; ++k) s_.mazzo[k] = static_cast<std::int16_t>(k);
  }

  /// The code that a press posts; 0 if it posts none.
  int left(float x, float y) { return post(Button::left, x, y); }
  int right(float x, float y) { return post(Button::right, x, y); }
  int post(Button button, float x, float y) {
    const auto before = s_.azione;
    pointer_.Form_MouseDown(button, x, y);
    const int posted = s_.azione;
    s_.azione = before;
    return posted == before ? 0 : posted;
  }
  bool arrow_at(float x, float y) {
    pointer_.Form_MouseMove(x, y);
    return window_.pointer() == PointerShape::up_arrow;
  }
  /// A zone answers from just within its borders on, and not on them.
  void expect_zone(const Area& zone, const std::function<bool(float, float)>& answers) {
    const auto in = [](float border, float toward) { return std::nextafter(border, toward); };
    const float x = (zone.left + zone.right) / 2;
    const float y = (zone.top + zone.bottom) / 2;
    EXPECT_TRUE(answers(in(zone.left, x), in(zone.top, y)));
    EXPECT_TRUE(answers(in(zone.right, x), in(zone.bottom, y)));
    EXPECT_FALSE(answers(zone.left, y)) << zone.left;
    EXPECT_FALSE(answers(zone.right, y)) << zone.right;
    EXPECT_FALSE(answers(x, zone.top)) << zone.top;
    EXPECT_FALSE(answers(x, zone.bottom)) << zone.bottom;
  }
  Lines items() { return seen(window_.surface()); }

  State s_;
  Geometry m_;
  HeadlessTimer timer_;
  HeadlessWindow window_{timer_};
  MemoryArchive archive_;
  Settings settings_{s_, archive_};
  Panels panels_{window_};
  PaintedTable table_{s_, m_, window_};
  NamesDialog names_{s_, window_, settings_, table_, plain_capital};
  Chronicle chronicle_{s_, window_};
  Pointer pointer_{s_, m_, window_, panels_, names_, chronicle_};
};

TEST_F(PointerTest, BeforeTheDrawPileAndStockAreSplitInTheMiddle) {
  for (const float scale : {1.F, 0.8F}) {
    m_ = Geometry::at_scale(scale);
    const float top = m_.tavolo_y();
    const float bottom = 300 + m_.altezza_carta / 2;
    expect_zone({400 - m_.larghezza_carta, top, 400, bottom},
                [&](float x, float y) { return left(x, y) == kDrawPile; });
    expect_zone({400, top, 400 + m_.larghezza_carta, bottom},
                [&](float x, float y) { return left(x, y) == kDrawStock; });
  }
  m_ = Geometry::at_scale(1);
  EXPECT_EQ(left(400, 300), kNoAction) << "the middle belongs to neither";
  EXPECT_EQ(s_.x_click, 400) << "and goes on to the meld bands";
  EXPECT_EQ(post(Button::other, 370, 300), kDrawPile) << "any button but the right one";
}

TEST_F(PointerTest, BeforeTheDrawTheBandsAnswerAnywhereAcrossTheTable) {
  EXPECT_EQ(left(1, 414.25F), kNoAction);
  EXPECT_EQ(left(1, 414.5F), kLayOwnSide);
  EXPECT_EQ(left(799, 600), kLayOwnSide);
  EXPECT_EQ(left(300, 500), kLayOwnSide) << "the fan too";
  expect_zone({-kFar, 144.25F, kFar, 238.5F}, [&](float x, float y) {
    return std::abs(x) < kFar && left(x, y) == kLayPartnerSide;
  });
}

TEST_F(PointerTest, AfterTheDrawTheFanDiscardsAndSelects) {
  s_.ha_pescato = true;
  for (const int cards : {2, 7, 13, 14}) {
    s_.n_mano[1] = static_cast<std::uint8_t>(cards);
    const Area fan = {250, 485.75F, 250 + static_cast<float>(cards) * 20, 580};
    for (const auto& [button, code] :
         {std::pair{Button::left, kDiscard}, {Button::right, kSelect}}) {
      expect_zone(fan, [&, button = button, code = code](float x, float y) {
        s_.x_click = 0;
        return post(button, x, y) == code && s_.x_click == x;
      });
    }
  }
  s_.n_mano[1] = 13;
  EXPECT_EQ(left(510, 500), kNoAction) << "the last card still shows there";
  EXPECT_EQ(left(300, 470), kNoAction) << "a raised card's upper part";
  EXPECT_EQ(left(370, 300), kNoAction) << "pile";
  EXPECT_EQ(left(300, 200), kNoAction) << "partner's band without the up arrow";
  s_.n_mano[1] = 1;
  EXPECT_EQ(right(255, 500), kNoAction) << "the last card can't be selected";
  EXPECT_EQ(left(255, 500), kDiscard);
  EXPECT_TRUE(items().empty()) << "and no prompt";
  s_.n_mano[1] = 0;
  EXPECT_EQ(left(250, 500), kNoAction);
}

TEST_F(PointerTest, TheUpArrowShowsOverTheBandsOnTheOwnTurn) {
  for (const bool drawn : {false, true}) {
    s_.ha_pescato = drawn;
    for (const Area& band : {Area{290, 414.25F, 0, 508.5F}, Area{290, 144.25F, 0, 238.5F}}) {
      Area zone = band;
      zone.right = m_.striscia_x() + 13 * m_.passo_carta() + (26.0F / 36.0F) * m_.larghezza_carta;
      EXPECT_NEAR(zone.right, 593.333, 0.001);
      expect_zone(zone, [&](float x, float y) { return arrow_at(x, y); });
    }
  }
  EXPECT_TRUE(arrow_at(400, 500)) << "over the fan's upper part as well";
  EXPECT_EQ(left(400, 500), kLayOwnSide) << "and there a press lays cards";
  EXPECT_TRUE(arrow_at(400, 200));
  EXPECT_EQ(left(400, 200), kLayPartnerSide);
  EXPECT_EQ(left(400, 300), kNoAction) << "a press acts on the shape of the last move";
  EXPECT_FALSE(arrow_at(400, 300));
  for (const int seat : {2, 3, 4}) {
    s_.di_turno = static_cast<std::uint8_t>(seat);
    window_.set_pointer(PointerShape::hourglass);
    EXPECT_FALSE(arrow_at(400, 200));
    EXPECT_EQ(window_.pointer(), PointerShape::arrow) << "a move ends the hourglass";
    EXPECT_EQ(left(370, 300), kNoAction);
    s_.ha_pescato = true;
    EXPECT_EQ(left(300, 550), kNoAction);
    EXPECT_EQ(right(300, 550), kSelect) << "which nobody reads";
    s_.ha_pescato = false;
  }
}

TEST_F(PointerTest, TheDrawForDealerTakesOnlyTheDeck) {
  s_.azione = kDealerDraw;
  s_.indice_estrazione = 4;
  for (const int seat : {2, 3, 4, 1}) {
    s_.di_turno = static_cast<std::uint8_t>(seat);
    expect_zone({370, 252.875F, 430, 347.125F}, [&](float x, float y) {
      s_.carta_scelta = 0;
      EXPECT_EQ(left(x, y), 0);
      return s_.carta_scelta == 4;
    });
  }
  s_.carta_scelta = 0;
  EXPECT_EQ(left(350, 300), kNoAction) << "where the pile will be";
  s_.ha_pescato = true;
  EXPECT_EQ(right(300, 500), kNoAction);
  EXPECT_TRUE(arrow_at(400, 200)) << "seat 1's draw";
  EXPECT_EQ(left(400, 200), kNoAction);
  EXPECT_EQ(s_.carta_scelta, 0);
  EXPECT_FALSE(arrow_at(400, 300));
  left(400, 300);
  EXPECT_EQ(s_.carta_scelta, 4);
}

TEST_F(PointerTest, ThePromptToDraw) {
  const Lines prompt = {"'PESCARE' 40,500 MS Sans Serif 7.8 black"};
  for (const int seat : {1, 2, 1}) {
    s_.di_turno = static_cast<std::uint8_t>(seat);
    EXPECT_EQ(right(790, 10), kNoAction) << "anywhere on the table";
    EXPECT_EQ(items(), prompt);
  }
  left(790, 252.875F);
  EXPECT_EQ(items(), prompt) << "beside the table band";
  left(790, 253);
  EXPECT_EQ(items(), (Lines{"box 40,500 140,520 felt"}));
  right(5, 5);
  s_.di_turno = 2;
  left(370, 300);
  EXPECT_TRUE(has(items(), prompt[0])) << "a computer's turn";
}

TEST_F(PointerTest, TheConfirmBarOfTheNamesDialog) {
  s_.di_turno = 2;
  expect_zone({75, 115, 135, 124.9F}, [&](float x, float y) {
    names_.personalize_players_Click();
    const int writes = archive_.writes;
    const bool confirmed = left(x, y) == kNamesConfirmed;
    EXPECT_NE(confirmed, names_.is_open());
    EXPECT_EQ(archive_.writes, writes + (confirmed ? 1 : 0));
    return confirmed;
  });
  names_.personalize_players_Click();
  EXPECT_EQ(right(100, 120), kNoAction) << "the left button confirms";
  window_.set_enabled(personalize_players, false);
  EXPECT_EQ(left(100, 120), kNoAction);
  window_.set_enabled(personalize_players, true);
  EXPECT_EQ(left(100, 120), kNamesConfirmed);
  EXPECT_TRUE(items().empty());
  s_.di_turno = 1;
  EXPECT_EQ(left(100, 120), kNoAction) << "closed, it is a place of the table like any other";
}

}  // namespace
}  // namespace tombrello
