// What the game tells the two sound devices, and shows of it in its menu.

#include <gtest/gtest.h>

#include <functional>

#include "headless/headless_window.h"
#include "headless/silent_media.h"
#include "sound/effects.h"
#include "sound/music.h"

namespace tombrello {
namespace {

using Log = std::vector<std::string>;
using Checks = std::vector<EntryId>;

TEST(Effects, TheDeviceIsToldStepByStep) {
  SilentMedia device;
  SilentBeeper beeper;
  std::uint8_t fruscio_opz = 1;
  Effects effects(device, beeper, fruscio_opz);
  effects.prepare();
  EXPECT_EQ(device.take(),
            (Log{"blocking", "opening option 0", "close", "file carta.wav", "open"}));
  effects.suona();
  effects.suona();
  EXPECT_EQ(device.take(), (Log{"play", "start option 0", "play", "start option 0"}));
  fruscio_opz = 0;  // it plays nothing, but still opens and beeps
  effects.suona();
  effects.beep();
  EXPECT_EQ(device.take(), Log{});
  EXPECT_EQ(beeper.beeps, 1);
  effects.Apri_suono("Notify");
  EXPECT_EQ(device.take(),
            (Log{"blocking", "opening option 0", "close", "file sounds/Notify.wav", "open"}));
  effects.close();
  EXPECT_EQ(device.take(), Log{"close"});
}

constexpr Music::Entries kEntries{.menu = 10, .nomusic = 11, .all = 12, .canzoni_0 = 20};

struct Room {
  SilentMedia device;
  HeadlessTimer timer;
  HeadlessWindow window{timer};
  MemoryArchive archive;
  std::uint8_t brano = 0;
  std::vector<int> written;  ///< `brano` at each write of the settings
  Music music{device, window, brano, kEntries, [this] { written.push_back(brano); }};

  explicit Room(const std::vector<std::string>& files, std::uint8_t option = 0) {
    window.add_entry(kEntries.nomusic, kEntries.menu, "Nessuna");
    window.add_entry(kEntries.all, kEntries.menu, "MODO SEQUENZIALE");
    for (const std::string& file : files) archive.files["music/" + file];
    brano = option;
    music.scan(archive);
    music.start();
  }
  /// The captions of the tunes' entries, in a line.
  std::string tunes() {
    std::string all;
    for (const EntryId entry : window.entries(kEntries.menu)) {
      if (entry > kEntries.canzoni_0) all += window.caption(entry) + ';';
    }
    return all;
  }
  /// The entries that carry a check, in the order of the menu.
  Checks checks() {
    Checks all = window.entries(kEntries.menu);
    std::erase_if(all, [this](EntryId entry) { return !window.checked(entry); });
    return all;
  }
};

Log plays(const std::string& tune) {
  return {"close", "file music/" + tune + ".mid", "open", "play"};
}

// Tunes are listed up to the first file that is none.
TEST(Music, BeginsAsTheFilesAndTheOptionSay) {
  const struct {
    std::uint8_t option;
    const char* captions;
    Checks checks;
    int brano;
    Log told;
    std::vector<std::string> files;
  } kRows[] = {
      {0, "Aria;Ballo && canto;", {11}, 0, {}, {"Aria.mid", "Ballo & canto.mid"}},
      {101, "Aria;", {12, 21}, 1, plays("Aria"), {"Aria.mid", "Leggimi.txt", "Marcia.mid"}},
      {2, "A;B;", {}, 2, {}, {".directory", ".mid", "A.mid.mid", "B.midi", "C.MID", "D.mid"}},
      {101, "", {12}, 0, {}, {}}};
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.captions);
    Room room(row.files, row.option);
    for (const int none : {0, room.music.tunes() + 1}) room.music.canzoni_Click(none);
    EXPECT_EQ(room.tunes(), row.captions);
    EXPECT_EQ(room.checks(), row.checks);
    EXPECT_EQ(room.brano, row.brano);
    EXPECT_EQ(room.device.take(), row.told);
    EXPECT_EQ(room.written, std::vector<int>{});
    room.music.all_Click();
    EXPECT_EQ(room.device.take().empty(), row.files.empty());
  }
}

TEST(Music, TheMenuHoldsAHundredTunes) {
  std::vector<std::string> files;
  for (int i = 1000; i < 1300; ++i) files.push_back(std::to_string(i) + ".mid");
  Room room(files, 101);
  EXPECT_EQ(room.music.tunes(), 100);
  for (int i = 1; i < 250; ++i) room.music.media_done(MediaEvents::kEnded);
  EXPECT_EQ(room.brano, 50);
}

TEST(Music, FollowsWhatIsChosenAndHowTunesEnd) {
  using Act = std::function<void(Music&)>;
  const Act nobody = [](Music& m) { m.nomusic_Click(); };
  const Act all = [](Music& m) { m.all_Click(); };
  const auto tune = [](int index) { return [=](Music& m) { m.canzoni_Click(index); }; };
  const auto told = [](int code) { return [=](Music& m) { m.media_done(code); }; };
  const Act ended = told(MediaEvents::kEnded);
  const Act failed = told(MediaEvents::kFailed);
  const struct {
    Act act;
    Log told;
    Checks checks;
    int brano;
  } kSteps[] = {
      {tune(1), {"close", "file music/A.mid", "open", "not blocking", "play"}, {21}, 0},
      {ended, {}, {21}, 0},  // the entry stays checked, nothing plays
      {failed, {}, {21}, 0},
      {all, plays("A"), {12, 21}, 1},
      {told(0), {}, {12, 21}, 1},  // no end
      {told(2), {}, {12, 21}, 1},
      {ended, plays("B & C"), {12, 22}, 2},
      {ended, plays("D"), {12, 23}, 3},
      {ended, plays("A"), {12, 21}, 1},
      {failed, plays("B & C"), {12, 22}, 2},
      {ended, plays("D"), {12, 23}, 3},  // a good one between bad ones
      {failed, plays("A"), {12, 21}, 1},
      {failed, plays("B & C"), {12, 22}, 2},
      {failed, {}, {12, 22}, 2},  // none of the three can be played
      {failed, {}, {12, 22}, 2},  // counted from nought when all are chosen again
      {all, plays("A"), {12, 21}, 1},
      {failed, plays("B & C"), {12, 22}, 2},
      {failed, plays("D"), {12, 23}, 3},
      {failed, {}, {12, 23}, 3},
      {tune(3), {"close", "file music/D.mid", "open", "not blocking", "play"}, {23}, 0},
      {all, plays("A"), {12, 21}, 1},
      {nobody, {"close"}, {11}, 0},
      {ended, {}, {11}, 0},
      {all, plays("A"), {12, 21}, 1},
      {[](Music& m) { m.close(); }, {"close"}, {12, 21}, 1},
  };
  Room room({"A.mid", "B & C.mid", "D.mid"});
  int number = 0;
  for (const auto& step : kSteps) {
    SCOPED_TRACE(++number);
    step.act(room.music);
    EXPECT_EQ(room.device.take(), step.told);
    EXPECT_EQ(room.checks(), step.checks);
    EXPECT_EQ(room.brano, step.brano);
  }
  EXPECT_EQ(room.written, (std::vector<int>{101, 101, 101, 0, 101}));
}

}  // namespace
}  // namespace tombrello
