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
    const files::path home = files::path(TOMBRELLO).parent_path();
    files::copy_file(TOMBRELLO_QUICK, disk.folder() / "quick");
    files::copy_file(home / "tombrello-sound.so", disk.folder() / "tombrello-sound.so");
    files::remove(disk.folder() / "sounds");
    files::copy(home / "sounds", disk.folder() / "sounds");
  }

  void start_sounding(Quick quick) { start_quick(quick, disk.folder() / "quick"); }
  /// Where sounds have begun since the device was opened.
  std::vector<double> begun(double silence = 0.05) { return onsets(disk.heard(), silence); }

  /// "h" for high and "l" for low, one for each change since the tune's device was opened.
  std::string pitches() {
    const auto samples = disk.heard();
    std::string all;
    for (double from = 0; from * DiskAudio::kRate < static_cast<double>(samples.size());
         from += 0.25) {
      const double high = strength(samples, from, kHigh);
      const double low = strength(samples, from, kLow);
      const char now = high > low ? 'h' : 'l';
      if (std::max(high, low) > 0.003 && !all.ends_with(now)) all += now;
    }
    return all;
  }

  DiskAudio disk{2};
};

TEST_F(Sounding, EveryCardDrawnAndDealtRustles) {
  start_sounding({.clock = kSeat4Deals, .deal = 500});
  dismiss_opening();
  for (int card = 1; card <= 4; ++card) {
    turn_up(card, card);
    wait_until("a rustle", [&](const View&) { return static_cast<int>(begun().size()) >= card; });
    disk.pass(0.4);
  }
  wait_for("pile", 1);
  disk.pass(0.5);
  EXPECT_LE(begun().size(), 4U + 52U);
  EXPECT_GE(begun().size(), 4U + 40U) << "a busy machine may miss some";
}

TEST_F(Sounding, TunesFollowEachOtherUntilMusicIsStopped) {
  disk.put("music/Alta.mid", short_tune("e5:2 r", 120));
  disk.put("music/Bassa.mid", short_tune("a4:2 r", 120));
  start_sounding({});
  press_screen("Musica");
  press_screen("MODO SEQUENZIALE");
  for (const char pitch : {'h', 'l', 'h'}) {
    wait_until("a tune", [&](const View&) { return pitches().ends_with(pitch); });
  }
  press_screen("Musica");
  press_screen("Nessuna");
  wait_until("silence", [&](const View&) {
    const double from = disk.now();  // with nothing to play the device rests
    comes_true([](const View&) { return false; }, Milliseconds(1500));
    return disk.now() >= from && loudness(disk.heard(), from, disk.now()) == 0;
  });
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
    wait_for_colour(30, 300, 0xC0C0C0);
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
  wait_until("music", [&](const View&) { return !begun().empty(); });
  const std::string icon = "\nIcon=" + home.string() + "/tombrello.png\n";
  wait_until("the entry to hear of the move", [&](const View&) {
    return file("dov'è ora/Tombrello.desktop").find(icon) != icon.npos;
  });
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
  files::rename(home / "tombrello-sound.so", folder / "what plays");
  expect_quiet_start();
  files::rename(folder / "what plays", home / "tombrello-sound.so");
  std::ofstream(home / "music/Bergamasca.mid") << "MThd? No.";
  files::resize_file(home / "sounds/carta.wav", 1ULL << 33);
  files::remove(home / "sounds/beep.wav");
  files::create_directory(home / "sounds/beep.wav");
  expect_quiet_start();
  files::remove(disk.folder() / "heard");  // the next tune, in the damaged one's place
  files::remove_all(home / "sounds");
  files::remove_all(home / "music");
  expect_quiet_start();
  std::ofstream(home / "music") << "a file";
  expect_quiet_start();
  EXPECT_EQ(begun().size(), 0U);
}

}  // namespace
}  // namespace tombrello
