#include <algorithm>
#include <fstream>

#include "player.h"
#include "tests/sound/listening.h"

namespace tombrello {
namespace {

namespace files = std::filesystem;

/// The game with its sound on a device that writes down what is heard, in a folder of its own.
class Sounding : public PlayingSession {
 protected:
  void SetUp() override {
    PlayingSession::SetUp();
    environment.insert("SDL_AUDIODRIVER", "disk");
    files::copy_file(TOMBRELLO_QUICK, disk.folder() / "quick");
    files::remove(disk.folder() / "sounds");
    files::copy(files::path(TOMBRELLO).parent_path() / "sounds", disk.folder() / "sounds");
  }

  void start_sounding(Quick quick) {
    start({disk.folder() / "quick", disk.folder(), std::to_string(quick.clock),
           std::to_string(quick.deal), std::to_string(quick.turns)});
    wait_until("the opening picture",
               [](const View& v) { return v.number("opening") == 1 && v.number("ready") == 1; });
  }

  void turn_up_slowly() {
    for (int card = 1; card <= 4; ++card) {
      turn_up(card, card);
      disk.pass(0.4);
    }
  }

  /// Where sounds have begun since the device was opened.
  std::vector<double> begun(double silence = 0.05) { return onsets(disk.heard(), silence); }
  /// Waits until what sounds now has that pitch, of `kHigh` and `kLow`.
  bool hears(double pitch) {
    const auto sounds = [&](const View&) {
      const double from = disk.now() - 0.3;
      if (from < 0) return false;
      const auto samples = disk.heard();
      const double other = strength(samples, from, pitch == kLow ? kHigh : kLow);
      return strength(samples, from, pitch) > std::max(0.003, 5 * other);
    };
    return comes_true(sounds, Milliseconds(20000));
  }

  DiskAudio disk{2};
};

TEST_F(Sounding, EveryCardDrawnAndDealtRustles) {
  start_sounding({.clock = kSeat4Deals, .deal = 500});
  dismiss_opening();
  turn_up_slowly();
  wait_for("pile", 1);
  disk.pass(0.5);
  EXPECT_EQ(begun().size(), 4U + 52U);
}

TEST_F(Sounding, TunesFollowEachOtherUntilMusicIsStopped) {
  disk.put("music/Alta.mid", short_tune("e5:2 r", 120));
  disk.put("music/Bassa.mid", short_tune("a4:2 r", 120));
  start_sounding({});
  press_screen("Musica");
  press_screen("MODO SEQUENZIALE");
  for (const double pitch : {kHigh, kLow, kHigh}) ASSERT_TRUE(hears(pitch));
  const auto lasting = short_tune("a4:1 | a4 | a4 | a4 | a4 | a4 | a4 | a4", 60);
  disk.put("music/Bassa.mid", lasting);  // comes next, and the choice in the menu cuts it short
  ASSERT_TRUE(hears(kLow));
  press_screen("Musica");
  press_screen("Nessuna");
  std::this_thread::sleep_for(Milliseconds(400));
  const double stopped = disk.now();  // with nothing to play the device rests
  std::this_thread::sleep_for(Milliseconds(600));
  EXPECT_EQ(loudness(disk.heard(), stopped, disk.now()), 0);
  close_by_frame();
  expect_quiet_end();
}

/// What is installed, in the place where a player has moved it.
class Installed : public Sounding {
 protected:
  void SetUp() override {
    Sounding::SetUp();
    const Outcome made =
        run({"cmake", "--install", TOMBRELLO_BUILD, "--prefix", folder / "dove nasce"});
    ASSERT_EQ(made.status, 0) << made.err;
    home = folder / "dov'è ora";
    files::rename(folder / "dove nasce", home);
  }
  /// Music plays from the start.
  void choose_all_tunes() {
    std::ofstream(home / "config.zvq") << " 1 \r\nA\r\nB\r\nC\r\nD\r\n 1 \r\n 101 \r\n 100 \r\n";
  }
  void expect_quiet_start() {
    start({home / "tombrello"});
    const auto grey = [&](const View&) { return pixel(shot(), 30, 300) == 0xC0C0C0; };
    EXPECT_TRUE(comes_true(grey, Milliseconds(10000)));
    press(400, 300);
    close_by_frame();
    expect_quiet_end();
  }

  files::path home;
};

TEST_F(Installed, StartsFromAnywhereAndFindsItsTunes) {
  for (const char* name : {"LEGGIMI.md", "tombrello.png", "sounds/carta.wav", "sounds/Notify.wav",
                           "sounds/beep.wav", "music/Canone.mid"}) {
    EXPECT_TRUE(files::is_regular_file(home / name)) << name;
  }
  const Outcome checked = run({"desktop-file-validate", home / "Tombrello.desktop"});
  EXPECT_EQ(checked.status, 0) << checked.out;
  choose_all_tunes();
  files::create_symlink(home / "tombrello", folder / "gioco");
  start({"sh", "-c", "cd / && exec \"$0\"", folder / "gioco"});
  EXPECT_TRUE(comes_true([&](const View&) { return !begun().empty(); }, Milliseconds(10000)));
  const std::string icon = "\nIcon=" + home.string() + "/tombrello.png\n";
  EXPECT_TRUE(comes_true(
      [&](const View&) { return file("dov'è ora/Tombrello.desktop").find(icon) != icon.npos; },
      Milliseconds(10000)))
      << "the entry has not heard of the move";
  close_by_frame();
  expect_quiet_end();
}

TEST_F(Installed, IsSilentWhereThereIsNothingToPlayOrToPlayOn) {
  choose_all_tunes();
  for (const char* driver : {"", "alsa", "pulseaudio", "none such"}) {
    SCOPED_TRACE(driver);
    environment.insert("SDL_AUDIODRIVER", driver);
    expect_quiet_start();
  }
  environment.insert("SDL_AUDIODRIVER", "disk");
  std::ofstream(home / "music/Bergamasca.mid") << "MThd? No.";
  files::resize_file(home / "sounds/carta.wav", 1ULL << 33);
  files::remove(home / "sounds/beep.wav");
  files::create_directory(home / "sounds/beep.wav");
  expect_quiet_start();
  files::remove_all(home / "sounds");
  files::remove_all(home / "music");
  expect_quiet_start();
  std::ofstream(home / "music") << "a file";
  expect_quiet_start();
  EXPECT_EQ(begun().size(), 0U);
}

}  // namespace
}  // namespace tombrello
