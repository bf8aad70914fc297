#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <atomic>
#include <future>
#include <optional>
#include <random>
#include <set>

#include "qt/audio/sdl_audio.h"
#include "qt/audio/wave_check.h"
#include "tests/last_threads.h"
#include "tests/sound/listening.h"
#include "tools/sounds/sounds.h"

namespace tombrello {
using namespace qt;
namespace {

using Command = MediaControl::Command;

struct Ends : MediaEvents {
  std::vector<int> codes;
  void media_done(int code) override { codes.push_back(code); }
};

/// The sound of the desktop on a device that writes down what is heard.
struct Heard {
  explicit Heard(int haste) : disk(haste) {
    disk.put("sounds/carta.wav", sounds::wave_file(sounds::rustle(1)));
    disk.put("sounds/Notify.wav", sounds::wave_file(sounds::notice()));
    disk.put("sounds/beep.wav", sounds::wave_file(sounds::beep()));
    disk.put("music/low.mid", short_tune("a4:2 r", 120));
    disk.put("music/long.mid", short_tune("a4:1 | a4:1 | a4:1 | a4:1 | a4:1 | a4:1", 60));
    audio.set_events(&ends);
  }

  /// A device is had when something is to be heard, were it a file that isn't there.
  void start() {
    audio.start();
    open(audio.wave(), "sounds/none.wav");
    audio.wave().command(Command::play);
    ASSERT_TRUE(disk.await([this] {
      const std::lock_guard lock(audio.wave().box()->mutex);
      return audio.wave().box()->beep == devices::Wave::Beep::heard;
    }));
    disk.pass(0.2);
  }
  void open(MediaControl& device, const std::string& file) {
    device.command(Command::close);
    device.set_file_name(file);
    device.command(Command::open);
  }
  void play(const std::string& file) {
    open(audio.sequencer(), file);
    audio.sequencer().command(Command::play);
  }
  void play_wave() {
    audio.wave().command(Command::play);
    await_waves();
  }
  /// Until the thread behind the wave device has taken all that it was told.
  void await_waves() {
    EXPECT_TRUE(disk.await([this] {
      const std::lock_guard lock(audio.wave().box()->mutex);
      return audio.wave().box()->jobs.empty();
    }));
    disk.pass(0.05);
  }
  /// Until so many sounds have begun.
  void await_begun(std::size_t count) {
    EXPECT_TRUE(disk.await([&] { return onsets(disk.heard()).size() >= count; })) << count;
  }
  /// Waits for the end of what plays; false if it doesn't come.
  bool await_end() {
    return disk.await([this] { return woken.exchange(false); });
  }

  DiskAudio disk;
  Ends ends;
  std::atomic<bool> woken = false;
  std::atomic<int> system_beeps = 0;
  devices::Audio audio{sdl_system(disk.folder(), [this] { ++system_beeps; }),
                       [this] { woken = true; }, 1};
};

TEST(Waves, WhatWasToldBeforeTheDeviceStoodIsHeardAndClosingLetsItFinish) {
  Heard heard(2);
  heard.open(heard.audio.wave(), "sounds/Notify.wav");
  heard.audio.wave().command(Command::play);
  EXPECT_EQ(heard.disk.now(), 0) << "the device was opened before it may be";
  heard.audio.start();
  heard.await_waves();
  heard.open(heard.audio.wave(), "sounds/carta.wav");
  heard.await_begun(1);
  heard.disk.pass(1.2);
  heard.play_wave();
  heard.await_begun(2);
  heard.disk.pass(0.4);
  const auto samples = heard.disk.heard();
  const auto begun = onsets(samples);
  ASSERT_EQ(begun.size(), 2U);  // the signal's two notes run into each other
  EXPECT_GT(strength(samples, begun[0] + 0.3, 880), 0.01) << "its second note was cut off";
}

// The game asks for one file each time; what lies beside it as -2 and -3 is the device's to choose.
TEST(Waves, ASoundWithSeveralTakesIsNeverHeardAlikeTwiceRunning) {
  Heard heard(6);
  const double hertz[] = {440, 660, 880};
  for (int take = 1; take <= 3; ++take) {
    sounds::Samples tone(sounds::kRate / 4);
    for (std::size_t i = 0; i < tone.size(); ++i)
      tone[i] = 0.3 * std::sin(2 * std::numbers::pi * hertz[take - 1] * static_cast<double>(i) /
                               sounds::kRate);
    heard.disk.put("sounds/" + sounds::rustle_file(take), sounds::wave_file(tone));
  }
  heard.start();
  heard.open(heard.audio.wave(), "sounds/carta.wav");
  constexpr std::size_t plays = 12;
  for (std::size_t i = 0; i < plays; ++i) {
    heard.play_wave();
    heard.await_begun(i + 1);
    heard.disk.pass(0.5);
  }
  const auto samples = heard.disk.heard();
  const auto begun = onsets(samples);
  ASSERT_EQ(begun.size(), plays);
  std::set<double> all;
  double last = 0;
  for (const double start : begun) {
    const double pitch = *std::max_element(std::begin(hertz), std::end(hertz), [&](auto a, auto b) {
      return strength(samples, start, a) < strength(samples, start, b);
    });
    EXPECT_NE(pitch, last);
    all.insert(last = pitch);
  }
  EXPECT_EQ(all.size(), 3U);
}

TEST(Waves, FilesThatAreNoneAreSilent) {
  Heard heard(6);
  heard.disk.put("sounds/broken.wav", "RIFF and nothing more");
  heard.disk.put("sounds/empty.wav", "");
  std::string slow = sounds::wave_file(sounds::rustle(1));
  slow[24] = 100;  // samples a second: six megabytes become gigabytes
  slow[25] = 0;
  slow[42] = 0x60;
  heard.disk.put("sounds/slow.wav", slow + std::string(7 << 20, '\1'));
  std::filesystem::create_directories(heard.disk.folder() / "sounds/folder.wav");
  heard.start();
  for (const char* name : {"broken", "empty", "slow", "folder", "missing"}) {
    heard.open(heard.audio.wave(), std::string("sounds/") + name + ".wav");
    heard.audio.wave().command(Command::play);
  }
  heard.await_waves();
  heard.disk.pass(0.3);
  EXPECT_EQ(onsets(heard.disk.heard()).size(), 0U);
  heard.audio.beeper().beep();
  heard.await_begun(1);
  heard.disk.pass(0.3);
  EXPECT_EQ(onsets(heard.disk.heard()).size(), 1U);
  EXPECT_EQ(heard.system_beeps, 0);
}

TEST(WaveCheck, TakesWhatIsFitToBePlayed) {
  struct Row {
    int tag, channels, rate, bits, frames;
    bool taken;
  };
  for (const auto& [tag, channels, rate, bits, frames, taken] :
       {Row{1, 1, 44100, 16, 9, true},
        {1, 2, 8000, 8, 1, true},
        {1, 2, 192000, 32, 9, true},
        {3, 1, 48000, 32, 9, true},
        {1, 1, 8000, 8, 480'000, true},
        {1, 1, 44100, 16, 0, false},
        {1, 1, 7999, 16, 9, false},
        {1, 1, 192001, 16, 9, false},
        {1, 1, 8000, 8, 480'001, false},
        {1, 0, 44100, 16, 9, false},
        {1, 3, 44100, 16, 9, false},
        {1, 1, 44100, 0, 9, false},
        {1, 1, 44100, 12, 9, false},
        {1, 1, 44100, 40, 9, false},
        {3, 1, 44100, 16, 9, false},
        {2, 1, 44100, 8, 9, false},
        {0xFFFE, 1, 44100, 16, 9, false}}) {
    std::string wave = sounds::wave_file({}).substr(0, 40);
    const auto set = [&](std::size_t at, int value, int bytes) {
      for (; bytes > 0; --bytes, value >>= 8) wave[at++] = static_cast<char>(value & 0xFF);
    };
    set(20, tag, 2);
    set(22, channels, 2);
    set(24, rate, 4);
    set(34, bits, 2);
    wave.insert(12, "LIST\3\0\0\0odd\0", 12);  // of no concern
    const auto size = static_cast<std::size_t>(frames * channels * ((bits + 7) / 8));
    wave += "\xFF\xFF\xFF\x7F" + std::string(size + (size > 1 && channels == 2 ? 1 : 0), 's');
    const std::string plain = plain_wave(wave);
    EXPECT_EQ(!plain.empty(), taken) << tag << ' ' << channels << ' ' << rate << ' ' << bits;
    if (taken) {
      EXPECT_EQ(plain.size(), 44 + size) << "whole frames";
      EXPECT_EQ(plain_wave(plain), plain);
    }
  }
}

TEST(Tunes, TheEndOfAnOlderPlayMeansNothing) {
  Heard heard(6);
  heard.audio.start();
  heard.play("music/low.mid");
  ASSERT_TRUE(heard.await_end());
  heard.play("music/long.mid");  // chosen while the end of the other was on its way
  heard.audio.deliver();
  EXPECT_TRUE(heard.ends.codes.empty());
  heard.play("music/low.mid");
  ASSERT_TRUE(heard.await_end());
  heard.audio.sequencer().command(Command::close);
  heard.audio.deliver();
  EXPECT_TRUE(heard.ends.codes.empty());
}

// A font that lacks an instrument takes another; a note that never ends is ended after a while.
TEST(Tunes, EachFileComesToItsEndOrIsSaidToBeNone) {
  Heard heard(6);
  const std::string whole = short_tune("a4:2 r", 120);
  std::string stuck = whole;
  const auto off = stuck.find('\x80', stuck.find("MTrk", 40));
  stuck[off] = '\xb0';  // the end of the note becomes a controller without effect
  stuck[off + 1] = 3;
  stuck[stuck.rfind('\xb0') + 1] = 3;  // and so does that of all notes
  heard.disk.put("music/huge.mid", whole);
  std::filesystem::resize_file(heard.disk.folder() / "music/huge.mid", 1UL << 33);
  std::filesystem::create_directories(heard.disk.folder() / "music/folder.mid");
  const auto track = [](const std::string& events) {
    const char size = static_cast<char>(events.size());
    return std::string("MThd\0\0\0\6\0\0\0\1\0\x60MTrk\0\0\0", 21) + size + events;
  };
  const struct {
    const char* name;
    std::optional<std::string> bytes;
    int code;
  } kFiles[] = {
      {"empty", "", MediaEvents::kFailed},
      {"broken", whole.substr(0, whole.size() / 2), MediaEvents::kFailed},
      {"text", "MThd? No.", MediaEvents::kFailed},
      {"brief", track({"\0\xFF\x2F\0", 4}), MediaEvents::kFailed},
      {"huge", {}, MediaEvents::kFailed},
      {"folder", {}, MediaEvents::kFailed},
      {"missing", {}, MediaEvents::kFailed},
      {"odd", track({"\0\xB0\0\x33\0\xC0\x0A\0\x90\x45\x60\x40\x80\x45\0\0\xFF\x2F\0", 19}),
       MediaEvents::kEnded},
      {"stuck", stuck, MediaEvents::kEnded},
  };
  testing::internal::CaptureStderr();
  heard.audio.start();
  for (const auto& [name, bytes, code] : kFiles) {
    const std::string file = std::string("music/") + name + ".mid";
    if (bytes) heard.disk.put(file, *bytes);
    heard.play(file);
    ASSERT_TRUE(heard.await_end()) << name;
    heard.audio.deliver();
    EXPECT_EQ(std::exchange(heard.ends.codes, {}), std::vector<int>{code}) << name;
    EXPECT_TRUE(code == MediaEvents::kEnded || onsets(heard.disk.heard()).empty()) << name;
  }
  EXPECT_FALSE(onsets(heard.disk.heard()).empty());
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(Tunes, CommandsInAnyOrderLeaveItWhole) {
  Heard heard(6);
  heard.audio.start();
  std::mt19937 chance(5);
  const char* const files[] = {"low", "long", "missing"};
  for (int i = 0; i < 300; ++i) {
    MediaControl& device = chance() % 3 == 0 ? static_cast<MediaControl&>(heard.audio.wave())
                                             : heard.audio.sequencer();
    if (chance() % 2 == 0)
      device.set_file_name(std::string("music/") + files[chance() % 3] + ".mid");
    device.command(static_cast<Command>(chance() % 3));
    if (chance() % 4 == 0) heard.audio.beeper().beep();
    if (heard.woken.exchange(false)) heard.audio.deliver();
    std::this_thread::sleep_for(std::chrono::milliseconds(chance() % 12));
  }
  heard.play("music/low.mid");
  heard.ends.codes.clear();
  EXPECT_TRUE(heard.disk.await([&] {
    heard.audio.deliver();
    return !heard.ends.codes.empty();
  }));
}

TEST(NoAudio, WithoutADeviceTheSystemBeepsAndAllElseIsSilent) {
  Heard heard(1);
  setenv("SDL_AUDIODRIVER", "none such", 1);
  heard.audio.start();
  heard.audio.beeper().beep();
  ASSERT_TRUE(heard.disk.await([&] {
    const std::lock_guard lock(heard.audio.wave().box()->mutex);
    return heard.audio.wave().box()->finished;
  }));
  heard.audio.deliver();
  EXPECT_EQ(heard.system_beeps, 1);
  heard.play("music/low.mid");
  heard.open(heard.audio.wave(), "sounds/carta.wav");
  heard.audio.wave().command(Command::play);
  heard.audio.beeper().beep();
  EXPECT_EQ(heard.system_beeps, 2);
  heard.audio.deliver();
  EXPECT_TRUE(heard.ends.codes.empty());
}

/// Takes a while to say that there is nothing to play on.
struct NoPlayer : devices::WavePlayer {
  NoPlayer(std::promise<void>& asked, std::future<void> answer)
      : asked_(asked), answer_(std::move(answer)) {}
  bool wake() override {
    asked_.set_value();
    answer_.wait();
    return false;
  }
  std::size_t takes(const std::string&) override { return 0; }
  void play(const std::string&, std::size_t) override {}

 private:
  std::promise<void>& asked_;
  std::future<void> answer_;
};

TEST(NoAudio, ABeepThatNobodyTakesIsTheSystems) {
  for (const bool no_library : {true, false}) {
    SCOPED_TRACE(no_library);
    std::promise<void> asked, answer, woken;
    int system_beeps = 0;
    const auto make = [&]() -> std::unique_ptr<devices::WavePlayer> {
      if (no_library) return nullptr;
      return std::make_unique<NoPlayer>(asked, answer.get_future());
    };
    devices::Audio audio(
        {make, [] { return nullptr; }, [&] { ++system_beeps; }}, [&] { woken.set_value(); }, 1);
    audio.start();
    if (!no_library) {  // it comes while a rustle is being asked for
      audio.wave().set_file_name("sounds/carta.wav");
      audio.wave().command(Command::open);
      audio.wave().command(Command::play);
      asked.get_future().wait();
    }
    audio.beeper().beep();
    answer.set_value();
    EXPECT_EQ(woken.get_future().wait_for(std::chrono::seconds(10)), std::future_status::ready);
    audio.deliver();
    EXPECT_EQ(system_beeps, 1);
  }
}

TEST(NoAudio, AServerThatHangsHoldsNothingUp) {
  Heard heard(1);
  const std::string path = (heard.disk.folder() / "server").string();
  const int server = socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  ASSERT_EQ(bind(server, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  ASSERT_EQ(listen(server, 8), 0);  // takes calls and never answers
  setenv("SDL_AUDIODRIVER", "pulseaudio", 1);
  setenv("PULSE_SERVER", ("unix:" + path).c_str(), 1);
  {
    devices::Audio audio(
        sdl_system(heard.disk.folder(), [&] { ++heard.system_beeps; }), [] {}, 1);
    audio.start();
    audio.beeper().beep();  // who knows yet?
    ASSERT_GE(accept(server, nullptr, nullptr), 0);
    for (int i = 0; i < 10'000; ++i) heard.open(audio.wave(), "sounds/carta.wav");
    audio.sequencer().command(Command::play);
    audio.beeper().beep();
    const std::lock_guard lock(audio.wave().box()->mutex);
    EXPECT_FALSE(audio.wave().box()->finished);
    EXPECT_LE(audio.wave().box()->jobs.size(), 2U);
  }
  EXPECT_EQ(heard.system_beeps, 1);
  close(server);
}

}  // namespace
}  // namespace tombrello
