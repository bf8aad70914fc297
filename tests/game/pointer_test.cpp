#include "shell/pointer.h"

#include <cmath>
#include <functional>

#include "headless/headless_window.h"
#include "tests/game/seen.h"

namespace tombrello {
namespace {

constexpr float kFar = 10000;

// What a press does beside posting codes.
constexpr int kTurnsUp = 100;  // a card for dealer
constexpr int kArrow = 101;    // a move turns the pointer into the up arrow

enum When { kBefore, kDrawn, kDraw, kNames };
constexpr Button kLeft = Button::left, kRight = Button::right, kOther = Button::other;

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

  void set(When when, int cards = 13) {
    s_.ha_pescato = when == kDrawn;
    s_.azione = when == kDraw ? kDealerDraw : kNoAction;
    s_.indice_estrazione = 4;
    s_.n_mano[1] = static_cast<std::uint8_t>(cards);
    window_.set_pointer(PointerShape::arrow);
    if (when == kNames && !names_.is_open()) names_.personalize_players_Click();
  }
  /// The code that a press posts, and where; 0 if it posts none.
  int press(Button button, float x, float y) {
    const auto before = s_.azione;
    s_.carta_scelta = 0;
    s_.x_click = 0;
    pointer_.Form_MouseDown(button, x, y);
    const int posted = s_.azione == before ? 0 : s_.azione;
    s_.azione = before;
    const bool at_x = posted == kDrawPile || posted == kDrawStock || posted == kNamesConfirmed;
    EXPECT_TRUE(posted == 0 || at_x || s_.x_click == x);
    return s_.carta_scelta == 4 ? kTurnsUp : posted;
  }
  int left(float x, float y) { return press(kLeft, x, y); }
  int right(float x, float y) { return press(kRight, x, y); }
  bool arrow_at(float x, float y) {
    pointer_.Form_MouseMove(x, y);
    return window_.pointer() == PointerShape::up_arrow;
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

struct Zone {
  When when;
  int cards;  // in the hand
  Button button;
  int does;
  Area area;
  float scale = 1;
};

constexpr float kArrowRight = 290 + 13 * 20.0F + (26.0F / 36.0F) * 60;
constexpr float kSmall = 60 * 0.8F;
constexpr float kSmallTop = 300 - 94.25F * 0.8F / 2, kSmallEnd = 300 + 94.25F * 0.8F / 2;

const std::vector<Zone> kZones = {
    {kBefore, 13, kLeft, kDrawPile, {340, 252.875F, 400, 347.125F}},
    {kBefore, 13, kLeft, kDrawStock, {400, 252.875F, 460, 347.125F}},
    {kBefore, 13, kOther, kDrawPile, {400 - kSmall, kSmallTop, 400, kSmallEnd}, 0.8F},
    {kBefore, 13, kOther, kDrawStock, {400, kSmallTop, 400 + kSmall, kSmallEnd}, 0.8F},
    {kBefore, 13, kLeft, kLayOwnSide, {-kFar, 414.25F, kFar, kFar}},
    {kBefore, 13, kLeft, kLayPartnerSide, {-kFar, 144.25F, kFar, 238.5F}},
    {kDrawn, 1, kLeft, kDiscard, {250, 485.75F, 270, 580}},
    {kDrawn, 2, kLeft, kDiscard, {250, 485.75F, 290, 580}},
    {kDrawn, 14, kLeft, kDiscard, {250, 485.75F, 530, 580}},
    {kDrawn, 2, kRight, kSelect, {250, 485.75F, 290, 580}},
    {kDrawn, 14, kRight, kSelect, {250, 485.75F, 530, 580}},
    {kDrawn, 13, kOther, kArrow, {290, 414.25F, kArrowRight, 508.5F}},
    {kBefore, 13, kOther, kArrow, {290, 144.25F, kArrowRight, 238.5F}},
    {kDraw, 0, kLeft, kTurnsUp, {370, 252.875F, 430, 347.125F}},
    {kNames, 0, kLeft, kNamesConfirmed, {75, 115, 135, 124.9F}},
};

// A zone answers from just within its borders on, and not on them.
TEST_F(PointerTest, EachZoneEndsAtItsBorders) {
  for (const Zone& zone : kZones) {
    SCOPED_TRACE("zone " + std::to_string(&zone - kZones.data()));
    m_ = Geometry::at_scale(zone.scale);
    const auto answers = [&](float x, float y) {
      set(zone.when, zone.cards);
      if (zone.does == kArrow) return arrow_at(x, y);
      return press(zone.button, x, y) == zone.does;
    };
    const auto& [from_x, from_y, to_x, to_y] = zone.area;
    const float x = (from_x + to_x) / 2;
    const float y = (from_y + to_y) / 2;
    EXPECT_TRUE(answers(std::nextafter(from_x, x), std::nextafter(from_y, y)));
    EXPECT_TRUE(answers(std::nextafter(to_x, x), std::nextafter(to_y, y)));
    for (const float border : {from_x, to_x}) {
      EXPECT_TRUE(std::abs(border) == kFar || !answers(border, y)) << border;
    }
    for (const float border : {from_y, to_y}) {
      EXPECT_TRUE(border == kFar || !answers(x, border)) << border;
    }
  }
}

TEST_F(PointerTest, ElsewhereAPressDoesNothing) {
  const struct {
    const char* why;
    When when;
    int cards;
    Button button;
    float x, y;
  } kPoints[] = {
      {"the middle belongs to neither", kBefore, 13, kLeft, 400, 300},
      {"the last card still shows there", kDrawn, 13, kLeft, 510, 500},
      {"a raised card's upper part", kDrawn, 13, kLeft, 300, 470},
      {"pile", kDrawn, 13, kLeft, 370, 300},
      {"partner's band without the up arrow", kDrawn, 13, kLeft, 300, 200},
      {"the last card can't be selected", kDrawn, 1, kRight, 255, 500},
      {"no card at all", kDrawn, 0, kLeft, 250, 500},
      {"where the pile will be", kDraw, 0, kLeft, 350, 300},
      {"the fan in the draw", kDraw, 13, kRight, 300, 500},
      {"the left button confirms", kNames, 13, kRight, 100, 120},
  };
  for (const auto& point : kPoints) {
    set(point.when, point.cards);
    EXPECT_EQ(press(point.button, point.x, point.y), 0) << point.why;
  }
}

TEST_F(PointerTest, UnderTheUpArrowAPressLaysCards) {
  set(kDrawn);
  EXPECT_TRUE(arrow_at(400, 500)) << "over the fan's upper part as well";
  EXPECT_EQ(left(400, 500), kLayOwnSide);
  EXPECT_TRUE(arrow_at(400, 200));
  EXPECT_EQ(left(400, 200), kLayPartnerSide);
  EXPECT_EQ(left(400, 300), kNoAction) << "a press acts on the shape of the last move";
  set(kDraw);
  EXPECT_TRUE(arrow_at(400, 200)) << "seat 1's draw";
  EXPECT_EQ(left(400, 200), kNoAction);
  EXPECT_FALSE(arrow_at(400, 300));
}

TEST_F(PointerTest, OthersTurnsTakeNoPress) {
  s_.di_turno = 3;
  window_.set_pointer(PointerShape::hourglass);
  EXPECT_FALSE(arrow_at(400, 200));
  EXPECT_EQ(window_.pointer(), PointerShape::arrow) << "a move ends the hourglass";
  EXPECT_EQ(left(370, 300), kNoAction);
  set(kDrawn);
  EXPECT_EQ(left(300, 550), kNoAction);
  EXPECT_EQ(right(300, 550), kSelect) << "which nobody reads";
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

TEST_F(PointerTest, TheConfirmBarClosesTheNamesDialog) {
  set(kNames);
  window_.set_enabled(personalize_players, false);
  EXPECT_EQ(left(100, 120), kNoAction);
  window_.set_enabled(personalize_players, true);
  EXPECT_EQ(left(100, 120), kNamesConfirmed);
  EXPECT_FALSE(names_.is_open());
  EXPECT_EQ(archive_.writes, 1);
  EXPECT_TRUE(items().empty());
  EXPECT_EQ(left(100, 120), kNoAction) << "closed, it is a place of the table like any other";
}

}  // namespace
}  // namespace tombrello
