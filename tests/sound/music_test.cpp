#include "sound/music.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/headless/silent_media.h"
#include "tests/sound/menu_window.h"

namespace tombrello {
namespace {

using Log = std::vector<std::string>;
using Checks = std::vector<EntryId>;

constexpr Music::Entries kEntries{.menu = 10, .nomusic = 11, .all = 12, .canzoni_0 = 20};

class Folder : public Archive {
 public:
  std::vector<std::string> files;

  std::optional<std::string> read(const std::string&, std::size_t) override { return {}; }
  bool replace(const std::string&, const std::string&) override { return false; }
  std::vector<std::string> list(const std::string& folder) override {
    return folder == "music" ? files : std::vector<std::string>{};
  }
};

struct MusicTest : testing::Test {
  SilentMedia device;
  MenuWindow window;
  Folder folder;
  std::uint8_t brano = 0;
  std::vector<int> written;  ///< `brano` at each write of the settings
  Music music{device, window, brano, kEntries, [this] { written.push_back(brano); }};

  void load(std::vector<std::string> files, std::uint8_t option = 0) {
    folder.files = std::move(files);
    brano = option;
    music.scan(folder);
    music.start();
  }
  Log plays(const std::string& tune) {
    return {"close", "file music/" + tune + ".mid", "open", "play"};
  }
};

TEST_F(MusicTest, EachTuneHasAnEntryUnderTheMenu) {
  load({"Aria.mid", "Ballo & canto.mid"});
  EXPECT_EQ(window.entries,
            (std::vector<MenuWindow::Entry>{{21, 10, "Aria"}, {22, 10, "Ballo && canto"}}));
  music.canzoni_Click(2);
  EXPECT_EQ(device.take()[1], "file music/Ballo & canto.mid");
}

TEST_F(MusicTest, TheScanEndsAtTheFirstFileThatIsNoTune) {
  load({"Aria.mid", "Leggimi.txt", "Marcia.mid"});
  EXPECT_EQ(music.tunes(), 1);
}

TEST_F(MusicTest, UppercaseExtensionsEndTheScan) {
  load({"Aria.mid", "BALLO.MID", "Canto.mid"});
  EXPECT_EQ(music.tunes(), 1);
}

TEST_F(MusicTest, ANameEndsWhereTheExtensionStands) {
  load({"Aria.mid.mid", "Ballo.midi"});
  ASSERT_EQ(music.tunes(), 2);
  EXPECT_EQ(window.entries[0].caption, "Aria");
  EXPECT_EQ(window.entries[1].caption, "Ballo");
}

TEST_F(MusicTest, HiddenFilesAreNotListed) {
  load({".directory", ".mid", "Aria.mid"});
  EXPECT_EQ(window.entries, (std::vector<MenuWindow::Entry>{{21, 10, "Aria"}}));
}

TEST_F(MusicTest, TheMenuHoldsAHundredTunes) {
  std::vector<std::string> files;
  for (int i = 1000; i < 1300; ++i) files.push_back(std::to_string(i) + ".mid");
  load(files);
  EXPECT_EQ(music.tunes(), 100);
  music.all_Click();
  for (int i = 1; i < 250; ++i) music.MMC1_Done(1);
  EXPECT_EQ(brano, 50);
}

TEST_F(MusicTest, AtStartZeroChecksNone) {
  load({"Aria.mid"}, 0);
  EXPECT_EQ(window.checked_entries(), Checks{11});
  EXPECT_EQ(device.take(), Log{});
}

TEST_F(MusicTest, AtStartTheMarkOfAllTunesPlaysTheFirst) {
  load({"Aria.mid", "Ballo.mid"}, 101);
  EXPECT_EQ(window.checked_entries(), (Checks{12, 21}));
  EXPECT_EQ(brano, 1);
  EXPECT_EQ(device.take(), plays("Aria"));
  EXPECT_EQ(written, std::vector<int>{});
}

TEST_F(MusicTest, AtStartARunningNumberChecksAndPlaysNothing) {
  load({"Aria.mid", "Ballo.mid"}, 2);
  EXPECT_EQ(window.checked_entries(), Checks{});
  EXPECT_EQ(brano, 2);
  EXPECT_EQ(device.take(), Log{});
  music.all_Click();
  EXPECT_EQ(brano, 1);
}

TEST_F(MusicTest, ASingleTunePlaysOnceAndIsNotWritten) {
  load({"Aria.mid", "Ballo.mid"});
  music.canzoni_Click(2);
  EXPECT_EQ(window.checked_entries(), Checks{22});
  EXPECT_EQ(brano, 0);
  EXPECT_EQ(device.take(), (Log{"close", "file music/Ballo.mid", "open", "not blocking", "play"}));
  EXPECT_EQ(written, std::vector<int>{});
  music.media_done(1);  // its end: the entry stays checked, nothing plays
  EXPECT_EQ(window.checked_entries(), Checks{22});
  EXPECT_EQ(device.take(), Log{});
}

TEST_F(MusicTest, AllTunesFollowEachOtherAndBeginAgain) {
  load({"Aria.mid", "Ballo.mid", "Canto.mid"});
  music.all_Click();
  EXPECT_EQ(written, std::vector<int>{101});
  EXPECT_EQ(device.take(), plays("Aria"));
  for (const auto& [number, tune] : {std::pair{2, "Ballo"}, {3, "Canto"}, {1, "Aria"}}) {
    music.media_done(1);
    EXPECT_EQ(brano, number);
    EXPECT_EQ(window.checked_entries(), (Checks{12, 20 + number}));
    EXPECT_EQ(device.take(), plays(tune));
  }
  EXPECT_EQ(written, std::vector<int>{101});
}

TEST_F(MusicTest, AOnlyTuneFollowsItself) {
  load({"Aria.mid"});
  music.all_Click();
  device.take();
  music.media_done(1);
  EXPECT_EQ(brano, 1);
  EXPECT_EQ(window.checked_entries(), (Checks{12, 21}));
  EXPECT_EQ(device.take(), plays("Aria"));
}

TEST_F(MusicTest, OtherCodesMeanNothing) {
  load({"Aria.mid", "Ballo.mid"}, 101);
  device.take();
  for (const int code : {0, 2, 4, -1}) music.media_done(code);
  EXPECT_EQ(brano, 1);
  EXPECT_EQ(device.take(), Log{});
}

TEST_F(MusicTest, NoMusicStopsAtOnceAndItsCompletionMeansNothing) {
  load({"Aria.mid", "Ballo.mid"}, 101);
  device.take();
  music.nomusic_Click();
  EXPECT_EQ(window.checked_entries(), Checks{11});
  EXPECT_EQ(written, std::vector<int>{0});
  EXPECT_EQ(device.take(), Log{"close"});
  music.media_done(1);
  EXPECT_EQ(brano, 0);
  EXPECT_EQ(device.take(), Log{});
}

TEST_F(MusicTest, WithoutTunesAllOfThemIsHarmless) {
  load({}, 101);
  EXPECT_EQ(window.entries.size(), 0U);
  EXPECT_EQ(window.checked_entries(), Checks{12});
  EXPECT_EQ(brano, 0);
  music.all_Click();
  music.media_done(1);
  music.canzoni_Click(1);
  EXPECT_EQ(brano, 0);
  EXPECT_EQ(device.take(), Log{});
  music.nomusic_Click();
  EXPECT_EQ(window.checked_entries(), Checks{11});
}

// Whatever order clicks and completions come in, the menu shows one choice, the option agrees
// with it, and what plays is what the menu shows.
TEST_F(MusicTest, ClicksAndCompletionsInAnyOrderAgree) {
  load({"A.mid", "B.mid", "C.mid", "D.mid"});
  std::mt19937 chance(1);
  const auto below = [&](unsigned n) { return static_cast<int>(chance() % n); };
  for (int step = 0; step < 5000; ++step) {
    switch (below(8)) {
      case 0:
        music.nomusic_Click();
        break;
      case 1:
        music.all_Click();
        break;
      case 2:
        music.canzoni_Click(below(7));
        break;
      default:
        music.media_done(below(3));
    }
    const Checks checks = window.checked_entries();
    const bool all = window.checked(12);
    ASSERT_EQ(checks.size(), all ? 2U : 1U) << "step " << step;
    ASSERT_EQ(brano, all ? checks[1] - 20 : 0) << "step " << step;
    const Log log = device.take();
    if (log.empty() || log.back() != "play") continue;
    const char shown = static_cast<char>('A' + checks.back() - 21);
    ASSERT_EQ(log[1], std::string("file music/") + shown + ".mid");
  }
}

}  // namespace
}  // namespace tombrello
