#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <numbers>
#include <random>
#include <set>

#include "qt/audio/midi_reader.h"
#include "qt/audio/takes.h"
#include "tools/music/arrange.h"
#include "tools/sounds/sounds.h"

namespace tombrello {
using namespace qt;
namespace {

namespace fs = std::filesystem;
const fs::path kRoot = TOMBRELLO_ROOT;

std::string bytes_of(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

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

TEST_P(TuneTest, SuitsACardTable) {
  const auto midi = read_midi(bytes_of(GetParam()));
  ASSERT_TRUE(midi.has_value());
  EXPECT_GE(midi->seconds(), 120);
  EXPECT_LE(midi->seconds(), 300);
  for (const MidiEvent& event : midi->events) {
    if (event.tempo > 0) {
      EXPECT_GE(60e6 / event.tempo, 40);
      EXPECT_LE(60e6 / event.tempo, 132);
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
                           std::erase(name, ' ');
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
  EXPECT_GE(tunes.size(), 6U);
}

/// Decibels of the loudest tenth of a second, which is what an ear compares.
double level(const sounds::Samples& samples) {
  const std::size_t window = sounds::kRate / 10;
  double power = 0, most = 0;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    power += samples[i] * samples[i];
    if (i >= window) power -= samples[i - window] * samples[i - window];
    most = std::max(most, power);
  }
  return 10 * std::log10(most / window);
}

double strength(const sounds::Samples& samples, double hertz) {
  std::complex<double> sum = 0;
  for (std::size_t i = 0; i < samples.size(); ++i)
    sum += samples[i] *
           std::polar(1.0, -2 * std::numbers::pi * hertz * static_cast<double>(i) / sounds::kRate);
  return std::norm(sum);
}

/// Where the middle of a sound's power lies, in hertz.
double centroid(const sounds::Samples& samples) {
  double moment = 0, power = 0;
  for (int hertz = 20; hertz < sounds::kRate / 2; hertz += 20) {
    moment += hertz * strength(samples, hertz);
    power += strength(samples, hertz);
  }
  return moment / power;
}

TEST(Sounds, AreWhatTheToolMakes) {
  for (int take = 1; take <= sounds::kRustles; ++take) {
    const auto name = sounds::rustle_file(take);
    EXPECT_EQ(take_file("carta.wav", take), name);  // where the device looks for it
    EXPECT_TRUE(sounds::wave_file(sounds::rustle(take)) ==
                bytes_of(kRoot / "assets/sounds" / name));
  }
  EXPECT_TRUE(sounds::wave_file(sounds::notice()) == bytes_of(kRoot / "assets/sounds/Notify.wav"));
  EXPECT_TRUE(sounds::wave_file(sounds::beep()) == bytes_of(kRoot / "assets/sounds/beep.wav"));
}

TEST(Sounds, TheRustleIsShortAndNeitherAToneNorAHiss) {
  for (int take = 1; take <= sounds::kRustles; ++take) {
    SCOPED_TRACE(take);
    const auto rustle = sounds::rustle(take);
    const double seconds = static_cast<double>(rustle.size()) / sounds::kRate;
    EXPECT_GE(seconds, 0.06);
    EXPECT_LE(seconds, 0.15);
    EXPECT_NEAR(centroid(rustle), 3000, 700);
    // A tone repeats itself; noise is unlike itself at every shift above a millisecond.
    double power = 0;
    for (const double sample : rustle) power += sample * sample;
    for (std::size_t shift = 44; shift < 400; ++shift) {
      double likeness = 0;
      for (std::size_t i = shift; i < rustle.size(); ++i) likeness += rustle[i] * rustle[i - shift];
      EXPECT_LT(likeness / power, 0.4) << "shift " << shift;
    }
  }
}

TEST(Sounds, TakesDifferALittleAndSignalsDoNotStartle) {
  const double rustle = level(sounds::rustle(1));
  for (int take = 2; take <= sounds::kRustles; ++take) {
    EXPECT_NEAR(level(sounds::rustle(take)), rustle, 1.6) << take;
    EXPECT_NE(sounds::rustle(take), sounds::rustle(take - 1));
  }
  for (const auto& signal : {sounds::notice(), sounds::beep()}) {
    EXPECT_GT(level(signal), rustle);
    EXPECT_LT(level(signal), rustle + 4);
  }
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

TEST(MidiReader, TimeFollowsEveryChangeOfTempo) {
  const auto tune = music::read_score(
      "tempo 60\nsection a\nmelody c4:1\nplay a melody=flute\nplay a melody=flute tempo=120\n");
  const auto midi = read_midi(music::midi_file(music::arrange(tune)));
  ASSERT_TRUE(midi.has_value());
  EXPECT_NEAR(midi->seconds(), 4 + 2 + 2, 0.01);  // and a bar to ring out
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
