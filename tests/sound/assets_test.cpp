// The tunes and sounds that the game brings along are what their tools make, and fit for a table.

#include <fluidsynth.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "devices/takes.h"
#include "qt/audio/midi_reader.h"
#include "tools/music/arrange.h"
#include "tools/sounds/sounds.h"

namespace tombrello {
using namespace qt;
namespace {

namespace fs = std::filesystem;

const fs::path kRoot = TOMBRELLO_ROOT;  ///< the sources

std::string bytes_of(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<fs::path> files_in(const fs::path& folder) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(kRoot / folder)) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

TEST(Sounds, AreWhatTheToolMakes) {
  std::map<std::string, sounds::Samples> all = {{"Notify.wav", sounds::notice()},
                                                {"beep.wav", sounds::beep()}};
  for (int take = 1; take <= sounds::kRustles; ++take)
    all[devices::take_file("carta.wav", take)] = sounds::rustle(take);
  for (const fs::path& file : files_in("assets/sounds"))
    EXPECT_TRUE(sounds::wave_file(all.at(file.filename())) == bytes_of(file)) << file;
  EXPECT_EQ(files_in("assets/sounds").size(), all.size());
}

class TuneTest : public testing::TestWithParam<fs::path> {
 protected:
  const std::string bytes_ = bytes_of(kRoot / "assets/music" / GetParam().stem().concat(".mid"));
};

TEST_P(TuneTest, IsWhatItsScoreSays) {
  const auto made = music::midi_file(music::arrange(music::read_score(bytes_of(GetParam()))));
  EXPECT_TRUE(made == bytes_) << "make it again with tombrello_music";
}

// A note that is left on would keep the tune from ever ending. Nobody waits before a tune, nor for
// long after it.
TEST_P(TuneTest, BeginsAtOnceAndEndsWithEachOfItsNotes) {
  auto midi = read_midi(bytes_);
  ASSERT_TRUE(midi.has_value());
  std::set<std::array<int, 3>> sounding;  // track, channel and pitch
  std::map<int, MidiEvent> last;          // of each track but for its end
  std::int64_t first_note = 1'000'000, last_note = 0;
  for (const MidiEvent& event : midi->events) {
    const std::array key{event.track, event.status & 0x0f, event.first};
    const int kind = event.status & 0xf0;
    if (kind == 0x90) {
      EXPECT_TRUE(sounding.insert(key).second) << "struck twice at tick " << event.tick;
      first_note = std::min(first_note, event.tick);
    } else if (kind == 0x80) {
      EXPECT_EQ(sounding.erase(key), 1U) << "let go unstruck at tick " << event.tick;
      last_note = std::max(last_note, event.tick);
    }
    if (event.track > 0 && kind != 0xf0) last[event.track] = event;
  }
  EXPECT_TRUE(sounding.empty());
  for (const auto& [track, event] : last)
    EXPECT_TRUE((event.status & 0xf0) == 0xb0 && event.first == 123)
        << "notes left on in " << track;
  EXPECT_EQ(first_note, 0);
  const double whole = midi->seconds();
  std::erase_if(midi->events, [&](const MidiEvent& event) { return event.tick > last_note; });
  EXPECT_LE(whole - midi->seconds(), 2);
}

/// As the soundfont plays it, in decibels below full scale, over all of the tune.
double heard_level(const std::string& tune) {
  fluid_settings_t* const settings = new_fluid_settings();
  fluid_settings_setnum(settings, "synth.sample-rate", 22050);
  fluid_settings_setint(settings, "synth.reverb.active", 0);
  fluid_settings_setint(settings, "synth.chorus.active", 0);
  fluid_synth_t* const synth = new_fluid_synth(settings);
  EXPECT_NE(fluid_synth_sfload(synth, "/usr/share/sounds/sf2/TimGM6mb.sf2", 1), FLUID_FAILED);
  fluid_player_t* const player = new_fluid_player(synth);
  fluid_player_add_mem(player, tune.data(), tune.size());
  fluid_player_play(player);
  double power = 0;
  std::size_t count = 0;
  for (float left[1024], right[1024]; fluid_player_get_status(player) == FLUID_PLAYER_PLAYING;) {
    fluid_synth_write_float(synth, 1024, left, 0, 1, right, 0, 1);
    for (int i = 0; i < 1024; ++i) power += left[i] * left[i] + right[i] * right[i];
    count += 2 * 1024;
  }
  delete_fluid_player(player);
  delete_fluid_synth(synth);
  delete_fluid_settings(settings);
  return 10 * std::log10(power / static_cast<double>(count));
}

TEST_P(TuneTest, IsAsLoudAsTheOthers) {
  EXPECT_NEAR(heard_level(bytes_), -37.5, 1.5);  // within 3 dB of each other
}

TEST_P(TuneTest, SuitsACardTable) {
  const auto midi = read_midi(bytes_);
  ASSERT_TRUE(midi.has_value());
  EXPECT_GE(midi->seconds(), 120);
  EXPECT_LE(midi->seconds(), 300);
  for (const MidiEvent& event : midi->events) {
    if (event.tempo > 0) {
      EXPECT_GE(60e6 / event.tempo, 40);
      EXPECT_LE(60e6 / event.tempo, 180);
    }
    if ((event.status & 0xf0) == 0x90) {
      EXPECT_GE(event.first, 33) << "too low to be heard";
      EXPECT_LE(event.first, 100) << "too shrill";
      EXPECT_NE(event.status & 0x0f, 9) << "drums";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Music, TuneTest, testing::ValuesIn(files_in("tools/music/scores")),
                         [](const auto& tune) {
                           std::string name = tune.param.stem().string();
                           std::erase_if(name,
                                         [](unsigned char c) { return std::isalnum(c) == 0; });
                           return name;
                         });

TEST(Tunes, HaveAScoreEachAndFillAnEvening) {
  double seconds = 0;
  for (const fs::path& file : files_in("assets/music"))
    seconds += read_midi(bytes_of(file)).value().seconds();
  EXPECT_EQ(files_in("assets/music").size(), files_in("tools/music/scores").size());
  EXPECT_GE(seconds, 45 * 60) << "they come round too soon";
}

TEST(MidiReader, TimeFollowsEveryChangeOfTempo) {
  const auto tune = music::read_score(
      "tempo 60\nsection a\nmelody c4:1\nplay a melody=flute\nplay a melody=flute tempo=120\n");
  const auto midi = read_midi(music::midi_file(music::arrange(tune)));
  ASSERT_TRUE(midi.has_value());
  EXPECT_NEAR(midi->seconds(), 4 + 2 + 0.5, 0.02);  // and half a second to ring out
}

TEST(Scores, MistakesAreNamedWithTheirLine) {
  const auto mistake = [](const std::string& text) -> std::string {
    try {
      music::read_score(text);
    } catch (const std::exception& error) {
      return error.what();
    }
    return {};
  };
  EXPECT_EQ(mistake("bar 3/4\nsection a\nmelody c4:4 d4\n").substr(0, 7), "line 3:");
  EXPECT_EQ(mistake("section a\nmelody h4:1\n").substr(0, 7), "line 2:");
  EXPECT_EQ(mistake("section a\nchords Cx\n").substr(0, 7), "line 2:");
  EXPECT_NE(mistake("section a\nmelody c4:1 | d4\nchords C\nplay a melody=flute\n"), "");
  EXPECT_NE(mistake("section a\nmelody c4:1\n"), "");
}

}  // namespace
}  // namespace tombrello
