#include <fluidsynth.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <map>
#include <random>
#include <set>

#include "qt/audio/midi_reader.h"
#include "tests/sound/files.h"
#include "tools/music/arrange.h"

namespace tombrello {
using namespace qt;
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> files_in(const fs::path& folder) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(folder)) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

class TuneTest : public testing::TestWithParam<fs::path> {};

TEST_P(TuneTest, IsWhatItsScoreSays) {
  const fs::path score = kRoot / "tools/music/scores" / GetParam().stem().concat(".txt");
  const auto made = music::midi_file(music::arrange(music::read_score(bytes_of(score))));
  EXPECT_TRUE(made == bytes_of(GetParam())) << "make it again with tombrello_music";
}

// A note that is left on would keep the tune from ever ending.
TEST_P(TuneTest, ClosesEveryNoteAndEndsEachTrackWithAllNotesOff) {
  const auto midi = read_midi(bytes_of(GetParam()));
  ASSERT_TRUE(midi.has_value());
  std::set<std::pair<int, int>> sounding;        // channel and pitch
  std::map<int, std::vector<MidiEvent>> tracks;  // an instrument each, in order
  for (const MidiEvent& event : midi->events) tracks[event.track].push_back(event);
  for (const auto& [track, events] : tracks) {
    for (const MidiEvent& event : events) {
      const std::pair key{event.status & 0x0f, event.first};
      const int kind = event.status & 0xf0;
      if (kind == 0x90 && event.second > 0) {
        EXPECT_TRUE(sounding.insert(key).second) << "struck twice at tick " << event.tick;
      } else if (kind == 0x80) {
        EXPECT_EQ(sounding.erase(key), 1U) << "let go unstruck at tick " << event.tick;
      }
    }
    EXPECT_TRUE(sounding.empty()) << "track " << track;
    if (track == 0) continue;
    const MidiEvent& last = events[events.size() - 2];
    EXPECT_EQ(last.status & 0xf0, 0xb0);
    EXPECT_EQ(last.first, 123) << "notes left on in track " << track;
  }
}

// Nobody waits before a tune, nor for long after it.
TEST_P(TuneTest, BeginsAtOnceAndEndsWithItsSound) {
  auto midi = read_midi(bytes_of(GetParam()));
  ASSERT_TRUE(midi.has_value());
  std::int64_t first = 1'000'000, last = 0;
  for (const MidiEvent& event : midi->events) {
    if ((event.status & 0xf0) == 0x90) first = std::min(first, event.tick);
    if ((event.status & 0xf0) == 0x80) last = std::max(last, event.tick);
  }
  EXPECT_EQ(first, 0);
  const double whole = midi->seconds();
  std::erase_if(midi->events, [&](const MidiEvent& event) { return event.tick > last; });
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
  EXPECT_NEAR(heard_level(bytes_of(GetParam())), -37.5, 1.5);  // within 3 dB of each other
}

TEST_P(TuneTest, SuitsACardTable) {
  const auto midi = read_midi(bytes_of(GetParam()));
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

INSTANTIATE_TEST_SUITE_P(Music, TuneTest, testing::ValuesIn(files_in(kRoot / "assets/music")),
                         [](const auto& tune) {
                           std::string name = tune.param.stem().string();
                           std::erase_if(name,
                                         [](unsigned char c) { return std::isalnum(c) == 0; });
                           return name;
                         });

TEST(Tunes, EachScoreHasItsTuneAndNothingElseLiesThere) {
  std::vector<std::string> scores, tunes;
  for (const fs::path& file : files_in(kRoot / "tools/music/scores"))
    scores.push_back(file.stem().string() + ".mid");
  for (const fs::path& file : files_in(kRoot / "assets/music"))
    tunes.push_back(file.filename().string());
  std::sort(scores.begin(), scores.end());
  EXPECT_EQ(scores, tunes);
}

TEST(Tunes, FillAnEveningWithoutComingRoundTooSoon) {
  double seconds = 0;
  for (const fs::path& file : files_in(kRoot / "assets/music"))
    seconds += read_midi(bytes_of(file)).value().seconds();
  EXPECT_GE(seconds, 45 * 60);
}

TEST(MidiReader, TimeFollowsEveryChangeOfTempo) {
  const auto tune = music::read_score(
      "tempo 60\nsection a\nmelody c4:1\nplay a melody=flute\nplay a melody=flute tempo=120\n");
  const auto midi = read_midi(music::midi_file(music::arrange(tune)));
  ASSERT_TRUE(midi.has_value());
  EXPECT_NEAR(midi->seconds(), 4 + 2 + 0.5, 0.02);  // and half a second to ring out
}

TEST(MidiReader, DamagedFilesAreRefusedOrReadButNeverUpsetIt) {
  const std::string whole = bytes_of(kRoot / "assets/music/Canone.mid");
  for (const std::size_t length : {0, 3, 10, 14, 20, 100, 2000})
    EXPECT_FALSE(read_midi(whole.substr(0, length)).has_value());
  std::mt19937 chance(3);
  for (int i = 0; i < 3000; ++i) {
    std::string damaged = whole;
    for (unsigned n = 1 + chance() % 8; n > 0; --n)
      damaged[chance() % (i % 2 == 0 ? 64 : damaged.size())] = static_cast<char>(chance());
    const auto midi = read_midi(damaged);
    EXPECT_GE(midi ? midi->seconds() : 0, 0);
  }
}

}  // namespace
}  // namespace tombrello
