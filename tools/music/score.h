#pragma once

#include <map>
#include <string>
#include <vector>

namespace tombrello::music {

inline constexpr int kQuarter = 480;  ///< ticks; every position and length below is in ticks

struct Note {
  int start;
  int length;
  int pitch;  ///< MIDI number, 60 is middle C
};

struct Chord {
  int start;
  int length;
  int bass;                ///< pitch class 0..11
  std::vector<int> tones;  ///< pitch classes, the root first; none where nothing accompanies
};

/// A stretch of music: voices of single notes over a line of chords, all of one length.
struct Section {
  int length = 0;
  std::map<std::string, int> lengths;  ///< of each voice, and of "chords"
  std::map<std::string, std::vector<Note>> voices;
  std::vector<Chord> chords;
};

/// Who plays what while a section passes: `what` is a voice of the section or a way of
/// accompanying, such as "waltz".
struct Part {
  std::string what;
  std::string instrument;
};

struct Pass {
  std::string section;
  std::vector<Part> parts;
  int tempo = 0;      ///< quarters a minute
  int transpose = 0;  ///< semitones
  int bars = 0;       ///< only so many of the section are heard; 0 for all of them
  bool soft = false;
  bool ritard = false;
};

struct Score {
  std::string title;
  int numerator = 4;
  int denominator = 4;
  int volume = 100;  ///< 1..127, of the whole tune
  std::map<std::string, Section> sections;
  std::vector<Pass> passes;

  /// Ticks that a pass lasts.
  int length_of(const Pass& pass) const;
  int bar() const { return 4 * kQuarter * numerator / denominator; }
  /// What a foot taps: a quarter, or three eighths where the bar divides that way.
  int beat() const;
};

/// Reads the notation that tools/music/README.md tells. Throws std::runtime_error with the
/// number of the line that it can't make sense of.
Score read_score(const std::string& text);

}  // namespace tombrello::music
