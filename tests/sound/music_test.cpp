#include "sound/music.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "headless/headless_window.h"
#include "headless/silent_media.h"

namespace tombrello {
namespace {

using Log = std::vector<std::string>;
using Checks = std::vector<EntryId>;

constexpr Music::Entries kEntries{.menu = 10, .nomusic = 11, .all = 12, .canzoni_0 = 20};

struct Room {
  SilentMedia device;
  HeadlessTimer timer;
  HeadlessWindow window{timer};
  MemoryArchive archive;
  std::uint8_t brano = 0;
  std::vector<int> written;  ///< `brano` at each write of the settings
  Music music{device, window, brano, kEntries, [this] { written.push_back(brano); }};

  void load(const std::vector<std::string>& files, std::uint8_t option = 0) {
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
  Log plays(const std::string& tune) {
    return {"close", "file music/" + tune + ".mid", "open", "play"};
  }
};

struct MusicTest : testing::Test, Room {};

TEST(MusicMenu, ListsTunesUpToTheFirstFileThatIsNone) {
  const std::pair<std::vector<std::string>, const char*> kFolders[] = {
      {{"Aria.mid", "Ballo & canto.mid"}, "Aria;Ballo && canto;"},
      {{"Aria.mid", "Leggimi.txt", "Marcia.mid"}, "Aria;"},
      {{".directory", ".mid", "Aria.mid.mid", "Ballo.midi", "CANTO.MID", "Danza.mid"},
       "Aria;Ballo;"}};
  for (const auto& [files, captions] : kFolders) {
    Room room;
    room.load(files);
    EXPECT_EQ(room.tunes(), captions);
    room.music.canzoni_Click(2);
    EXPECT_TRUE(files.size() != 2 || room.device.log[1] == "file music/Ballo & canto.mid");
  }
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

TEST(MusicAtStart, FollowsTheOption) {
  const struct {
    std::uint8_t option, brano;
    Checks checks;
    bool plays;
  } kRows[] = {{0, 0, {11}, false}, {101, 1, {12, 21}, true}, {2, 2, {}, false}};
  for (const auto& row : kRows) {
    Room room;
    room.load({"Aria.mid", "Ballo.mid"}, row.option);
    EXPECT_EQ(room.checks(), row.checks);
    EXPECT_EQ(room.brano, row.brano);
    EXPECT_EQ(room.device.take(), row.plays ? room.plays("Aria") : Log());
    EXPECT_EQ(room.written, std::vector<int>{});
  }
}

TEST_F(MusicTest, ASingleTunePlaysOnceAndIsNotWritten) {
  load({"Aria.mid", "Ballo.mid"});
  music.canzoni_Click(2);
  EXPECT_EQ(device.take(), (Log{"close", "file music/Ballo.mid", "open", "not blocking", "play"}));
  music.media_done(1);  // its end: the entry stays checked, nothing plays
  EXPECT_EQ(checks(), Checks{22});
  EXPECT_EQ(brano, 0);
  EXPECT_EQ(device.take(), Log{});
  EXPECT_EQ(written, std::vector<int>{});
}

TEST_F(MusicTest, AllTunesFollowEachOtherAndBeginAgain) {
  load({"Aria.mid", "Ballo.mid", "Canto.mid"});
  music.all_Click();
  EXPECT_EQ(device.take(), plays("Aria"));
  for (const auto& [number, tune] : {std::pair{2, "Ballo"}, {3, "Canto"}, {1, "Aria"}}) {
    for (const int code : {0, 2, -1, 1}) music.media_done(code);  // only the last is an end
    EXPECT_EQ(brano, number);
    EXPECT_EQ(checks(), (Checks{12, 20 + number}));
    EXPECT_EQ(device.take(), plays(tune));
  }
  EXPECT_EQ(written, std::vector<int>{101});
}

TEST_F(MusicTest, ATuneThatCantBePlayedGivesWayUntilNoneCan) {
  load({"Aria.mid", "Ballo.mid", "Canto.mid"});
  for (int again = 0; again < 2; ++again) {
    music.all_Click();
    music.media_done(MediaEvents::kFailed);
    music.media_done(MediaEvents::kEnded);  // a good one between bad ones
    music.media_done(MediaEvents::kFailed);
    device.take();
    music.media_done(MediaEvents::kFailed);
    EXPECT_EQ(device.take(), plays("Ballo"));
    music.media_done(MediaEvents::kFailed);
    EXPECT_EQ(device.take(), Log{});
  }
  music.canzoni_Click(3);
  device.take();
  music.media_done(MediaEvents::kFailed);
  EXPECT_EQ(device.take(), Log{}) << "a single tune has no next";
}

TEST_F(MusicTest, NoMusicStopsAtOnceAndItsCompletionMeansNothing) {
  load({"Aria.mid", "Ballo.mid"}, 101);
  device.take();
  music.nomusic_Click();
  music.media_done(1);
  EXPECT_EQ(checks(), Checks{11});
  EXPECT_EQ(written, std::vector<int>{0});
  EXPECT_EQ(device.take(), Log{"close"});
}

TEST_F(MusicTest, WithoutTunesAllOfThemIsHarmless) {
  load({}, 101);
  EXPECT_EQ(checks(), Checks{12});
  music.all_Click();
  music.media_done(1);
  music.canzoni_Click(1);
  EXPECT_EQ(brano, 0);
  EXPECT_EQ(device.take(), Log{});
  music.nomusic_Click();
  EXPECT_EQ(checks(), Checks{11});
}

// Whatever order clicks and completions come in, the menu shows one choice, the option agrees
// with it, and what plays is what the menu shows.
TEST_F(MusicTest, ClicksAndCompletionsInAnyOrderAgree) {
  load({"A.mid", "B.mid", "C.mid", "D.mid"});
  std::mt19937 chance(1);
  const auto below = [&](unsigned n) { return static_cast<int>(chance() % n); };
  for (int step = 0; step < 5000; ++step) {
    const int choice = below(8);
    if (choice == 0) music.nomusic_Click();
    if (choice == 1) music.all_Click();
    if (choice == 2) music.canzoni_Click(below(7));
    if (choice > 2) music.media_done(std::array{0, 1, 2, 8}[chance() % 4]);
    const bool all = window.checked(kEntries.all);
    ASSERT_EQ(checks().size(), all ? 2U : 1U) << "step " << step;
    ASSERT_EQ(brano, all ? checks()[1] - 20 : 0) << "step " << step;
    const Log log = device.take();
    if (log.empty() || log.back() != "play") continue;
    const char shown = static_cast<char>('A' + checks().back() - 21);
    ASSERT_EQ(log[1], std::string("file music/") + shown + ".mid");
  }
}

}  // namespace
}  // namespace tombrello
