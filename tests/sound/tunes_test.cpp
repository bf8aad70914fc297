#include <fluidsynth.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
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

/// Four bars of melody and chords, three times over; `how` is said of the second time.
music::Arrangement played_thrice(const std::string& how) {
  const std::string pass = "play a melody=flute waltz=guitar ";
  return music::arrange(
      music::read_score("tempo 120\nsection a\nmelody c5:4 d5 e5 f5 | g5 f5 e5 d5\n"
                        "melody c5 d5 e5 f5 | g5 f5 e5 d5\n"
                        "chords C | G | C | G\n" +
                        pass + "\n" + pass + how + "\n" + pass + "\n"));
}

double mean_velocity(const std::vector<music::Played>& notes, std::size_t from, std::size_t to) {
  double sum = 0;
  for (std::size_t i = from; i < to; ++i) sum += notes[i].velocity;
  return sum / static_cast<double>(to - from);
}

TEST(Hands, PlayNoPassTwiceAlikeAndStayNearTheScore) {
  const auto notes = played_thrice("").instruments.at("flute");
  ASSERT_EQ(notes.size(), 48U);
  constexpr int pass = 4 * 4 * music::kQuarter;
  for (const auto& [one, other] : {std::pair{0U, 16U}, {0U, 32U}, {16U, 32U}}) {
    int later = 0, harder = 0;
    for (unsigned i = 0; i < 16; ++i) {
      const int moved =
          notes[other + i].start - notes[one + i].start - static_cast<int>(other - one) / 16 * pass;
      later += moved != 0;
      harder += notes[other + i].velocity != notes[one + i].velocity;
      EXPECT_LE(std::abs(moved), 16);
      EXPECT_LE(std::abs(notes[other + i].velocity - notes[one + i].velocity), 6);
    }
    EXPECT_GT(later, 8);
    EXPECT_GT(harder, 8);
  }
}

TEST(Hands, SwellWithThePhraseAndPlayASecondPassSofter) {
  const auto notes = played_thrice("soft").instruments.at("flute");
  EXPECT_GT(mean_velocity(notes, 6, 10), mean_velocity(notes, 0, 3) + 4);
  EXPECT_GT(mean_velocity(notes, 6, 10), mean_velocity(notes, 13, 16) + 4);
  EXPECT_LT(mean_velocity(notes, 16, 32), mean_velocity(notes, 0, 16) - 4);
}

TEST(Hands, SpreadTheChordsOfTheGuitar) {
  const auto notes = played_thrice("").instruments.at("guitar");
  const int spread = 8 * 120 * music::kQuarter / 60'000;  // 8 ms in ticks
  for (std::size_t i = 0; i + 2 < notes.size(); i += 3) {
    EXPECT_EQ(notes[i + 1].start - notes[i].start, spread);
    EXPECT_EQ(notes[i + 2].start - notes[i].start, 2 * spread);
    EXPECT_LT(notes[i].pitch, notes[i + 2].pitch);
  }
}

TEST(Hands, LetLongNotesOfBowAndBreathGrowAlone) {
  for (const auto& [instrument, grows] : {std::pair{"flute", true}, {"guitar", false}}) {
    const std::string score = "section a\nmelody c5:2 c5\nplay a melody=";
    const auto midi =
        read_midi(music::midi_file(music::arrange(music::read_score(score + instrument))));
    int least = 127, most = 0;
    for (const MidiEvent& event : midi.value().events) {
      if ((event.status & 0xf0) != 0xb0 || event.first != 11) continue;
      least = std::min(least, event.second);
      most = std::max(most, event.second);
    }
    EXPECT_EQ(most > least + 12, grows) << instrument;
  }
}

TEST(Hands, SlowDownInSixSteps) {
  const auto tune = played_thrice("ritard");
  ASSERT_EQ(tune.tempos.size(), 8U);  // before, six steps, and in time again
  for (std::size_t i = 1; i < 7; ++i) EXPECT_LT(tune.tempos[i].tempo, tune.tempos[i - 1].tempo);
  EXPECT_EQ(tune.tempos[7].tempo, 120);
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
