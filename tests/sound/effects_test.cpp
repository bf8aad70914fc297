#include "sound/effects.h"

#include <gtest/gtest.h>

#include "platform/headless/silent_media.h"

namespace tombrello {
namespace {

using Log = std::vector<std::string>;

struct EffectsTest : testing::Test {
  SilentMedia device;
  SilentBeeper beeper;
  std::uint8_t fruscio_opz = 1;
  Effects effects{device, beeper, fruscio_opz};
};

TEST_F(EffectsTest, OpeningASoundTellsTheDeviceStepByStep) {
  effects.Apri_suono("Notify");
  EXPECT_EQ(device.take(),
            (Log{"blocking", "opening option 0", "close", "file sounds/Notify.wav", "open"}));
}

TEST_F(EffectsTest, AtLoadTheRustleBesideTheProgramIsOpened) {
  effects.prepare();
  EXPECT_EQ(device.take(),
            (Log{"blocking", "opening option 0", "close", "file carta.wav", "open"}));
}

TEST_F(EffectsTest, PlayingRewindsForTheNextPlay) {
  effects.suona();
  effects.suona();
  EXPECT_EQ(device.take(), (Log{"play", "start option 0", "play", "start option 0"}));
}

TEST_F(EffectsTest, SwitchedOffItPlaysNothingButStillOpens) {
  fruscio_opz = 0;
  effects.suona();
  EXPECT_EQ(device.take(), Log{});
  effects.Apri_suono("carta");
  EXPECT_EQ(device.take().back(), "open");
  effects.suona();
  EXPECT_EQ(device.take(), Log{});
  fruscio_opz = 1;
  effects.suona();
  EXPECT_EQ(device.take().front(), "play");
}

TEST_F(EffectsTest, TheBeepIsHeardWhateverTheOptionSays) {
  fruscio_opz = 0;
  effects.beep();
  EXPECT_EQ(beeper.beeps, 1);
  EXPECT_EQ(device.take(), Log{});
}

TEST_F(EffectsTest, LeavingClosesTheDevice) {
  effects.close();
  EXPECT_EQ(device.take(), Log{"close"});
}

}  // namespace
}  // namespace tombrello
