#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "qt/audio/midi_reader.h"
#include "tools/music/arrange.h"

namespace tombrello {
using namespace qt;
namespace {

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

}  // namespace
}  // namespace tombrello
