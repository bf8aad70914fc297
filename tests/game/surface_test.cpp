#include "seam/surface.h"

#include "tests/game/seen.h"

namespace tombrello {
namespace {

constexpr Picture kAce = {PictureSet::carta, 1};
constexpr Picture kTwo = {PictureSet::carta, 2};
constexpr Picture kLying = {PictureSet::cartao, 3};

class SurfaceTest : public testing::Test {
 protected:
  Surface surface_;
};

TEST_F(SurfaceTest, CornersInAnyOrderAndNegativeSizesThatMirror) {
  surface_.filled_box(30, 40, 10, 20, kFelt);
  surface_.filled_box(32, 20, 12, 40, kFelt);
  surface_.open_box(10, 40, 30, 20, kYellow);
  surface_.paint(kLying, 200, 100, 90, 60);
  surface_.paint(kLying, 200, 100, -90, 60);
  surface_.paint(kLying, 200, 100, 90, -60);
  surface_.paint(kLying, 200, 100, -90, -60);
  surface_.paint(kLying, 200, 100, 0, 0);
  EXPECT_EQ(seen(surface_),
            (Lines{"box 10,20 30,40 felt", "box 12,20 32,40 felt", "frame 10,20 30,40 yellow",
                   "3♥ lying 200,100 290,160", "3♥ lying 110,100 200,160 mirrored x",
                   "3♥ lying 200,40 290,100 mirrored y", "3♥ lying 110,40 200,100 turned",
                   "3♥ lying 200,100 200,100"}));
}

TEST_F(SurfaceTest, ABoxTakesAwayWhatItCoversWholly) {
  surface_.paint(kAce, 10, 10, 60, 90);     // ends on the box's border
  surface_.paint(kTwo, 20, 10, 60, 90.5F);  // looks out below
  surface_.filled_box(30, 30, 40, 40, kBlue);
  surface_.open_box(10, 10, 80, 100, kYellow);
  surface_.set_text_position(10, 100);
  surface_.print("a text on the border goes whole, however long it is");
  surface_.set_text_position(9.5F, 50);
  surface_.print("starts outside");
  surface_.filled_box(10, 10, 80, 100, kFelt);
  EXPECT_EQ(seen(surface_),
            (Lines{"2♥ 20,10 80,100.5", "'starts outside' 9.5,50 MS Sans Serif 7.8 black",
                   "box 10,10 80,100 felt"}));
}

TEST_F(SurfaceTest, PaintingAHundredTimesStandsOnce) {
  for (int i = 0; i < 100; ++i) {
    surface_.filled_box(0, 0, 158, 30, kPaleYellow);
    surface_.open_box(0, 30, 158, 130, kYellow);
    surface_.paint(i % 2 == 0 ? kAce : kTwo, 300, 300, 60, 90);  // which replaces and comes up
    surface_.paint(kAce, 320, 300, 60, 90);
    surface_.set_text_colour(i % 2 == 0 ? kWhite : kGreen);
    surface_.set_text_position(370, 464);
    surface_.print("TU");
  }
  EXPECT_EQ(seen(surface_),
            (Lines{"box 0,0 158,30 pale", "frame 0,30 158,130 yellow", "2♥ 300,300 360,390",
                   "A♥ 320,300 380,390", "'TU' 370,464 MS Sans Serif 7.8 green"}));
}

TEST_F(SurfaceTest, PrintsInheritTheTextStateAndLinesFollow) {
  surface_.print("at the start");
  surface_.set_font_name("Arial");
  surface_.set_font_size(8);
  surface_.print("next line, at the left edge");
  surface_.set_text_x(90);
  surface_.print_staying("third");
  surface_.set_text_x(200);
  surface_.set_text_colour(kWhite);
  surface_.print("same line");
  surface_.print("fourth");
  surface_.set_text_position(0, 70);
  surface_.print("at a place of its own");
  EXPECT_EQ(seen(surface_),
            (Lines{"'at the start' 0,0 MS Sans Serif 7.8 black",
                   "'next line, at the left edge' 0,0+1 Arial 8 black",
                   "'third' 90,0+2 Arial 8 black", "'same line' 200,0+2 Arial 8 white",
                   "'fourth' 0,0+3 Arial 8 white", "'at a place of its own' 0,70 Arial 8 white"}));
  const auto& second = std::get<TextItem>(surface_.items()[1]);
  EXPECT_EQ(second.lines_above, (std::vector<Font>{{"MS Sans Serif", 7.8F}}))
      << "a line is as high as its own font";
}

TEST_F(SurfaceTest, ClearTakesTheBackgroundAndSendsTheTextHome) {
  surface_.set_text_position(40, 50);
  surface_.print("one");
  surface_.set_background(kFelt);
  EXPECT_TRUE(surface_.items().empty());
  EXPECT_EQ(surface_.background(), kFelt);
  surface_.print("two");
  EXPECT_EQ(seen(surface_), (Lines{"'two' 0,0 MS Sans Serif 7.8 black"}));
}

TEST_F(SurfaceTest, ChangesTellWhatToRepaint) {
  EXPECT_TRUE(surface_.take_changes().everything) << "nothing was shown yet";
  EXPECT_TRUE(surface_.take_changes().items.empty());
  surface_.set_text_position(5, 5);
  surface_.print("a");
  surface_.take_changes();
  surface_.filled_box(0, 0, 10, 10, kFelt);
  Lines changed;
  for (const Item& item : surface_.take_changes().items) changed.push_back(seen(item));
  EXPECT_EQ(changed, (Lines{"'a' 5,5 MS Sans Serif 7.8 black", "box 0,0 10,10 felt"}))
      << "also what went, which may have reached further than what covers it";
  for (int i = 0; i < 5000; ++i) surface_.filled_box(0, 0, 10, 10, kFelt);
  const auto many = surface_.take_changes();
  EXPECT_TRUE(many.everything);
  EXPECT_LT(many.items.size(), 1000U) << "nobody may be listening";
}

}  // namespace
}  // namespace tombrello
