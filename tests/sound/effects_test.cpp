#include "sound/effects.h"

#include <gtest/gtest.h>

#include "headless/silent_media.h"

namespace tombrello {
namespace {

using Log = std::vector<std::string>;

struct EffectsTest : testing::Test {
  SilentMedia device;
  SilentBeeper beeper;
  std::uint8_t fruscio_opz = 1;
  Effects effects{device, beeper, fruscio_opz};
};

TEST_F(EffectsTest, TheDeviceIsToldStepByStep) {
  effects.prepare();
  EXPECT_EQ(device.take(),
            (Log{"blocking", "opening option 0", "close", "file carta.wav", "open"}));
  effects.Apri_suono("Notify");
  EXPECT_EQ(device.take(),
            (Log{"blocking", "opening option 0", "close", "file sounds/Notify.wav", "open"}));
  effects.suona();
  effects.suona();
  EXPECT_EQ(device.take(), (Log{"play", "start option 0", "play", "start option 0"}));
  effects.close();
  EXPECT_EQ(device.take(), Log{"close"});
}

TEST_F(EffectsTest, SwitchedOffItPlaysNothingButStillOpensAndBeeps) {
  fruscio_opz = 0;
  effects.suona();
  effects.beep();
  EXPECT_EQ(device.take(), Log{});
  EXPECT_EQ(beeper.beeps, 1);
  effects.Apri_suono("carta");
  EXPECT_EQ(device.take().back(), "open");
  fruscio_opz = 1;
  effects.suona();
  EXPECT_EQ(device.take().front(), "play");
}

}  // namespace
}  // namespace tombrello
