#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "tools/music/score.h"

namespace tombrello::music {

struct Played {
  int start;
  int length;
  int pitch;
  int velocity;  ///< 1..127
};

struct TempoMark {
  int start;
  int tempo;  ///< quarters a minute
};

/// A tune with every note in its place, an instrument's notes in order of start. It begins with
/// its first note, wherever that stands in its bar.
struct Arrangement {
  std::string title;
  int numerator;
  int denominator;
  int volume;
  int beat;
  int length;
  std::vector<TempoMark> tempos;
  std::map<std::string, std::vector<Played>> instruments;
};

/// Throws std::runtime_error if a part names a voice or way of accompanying that there isn't.
Arrangement arrange(const Score& score);

/// Moves every note a little, in time and in force, as hands do, and spreads what the guitar
/// strikes. The same tune comes out the same each time.
void play_by_hand(Arrangement& tune);

/// General MIDI program, loudness and place of an instrument; throws if it isn't known.
struct Instrument {
  int program;  ///< 0..127
  int level;    ///< 0..127
  int pan;      ///< 0 left, 64 middle, 127 right
  bool held;    ///< bow or breath goes on while a note lasts, and can swell
};
Instrument instrument(const std::string& name);

/// The bytes of a MIDI file, format 1: a track of tempos, then one for each instrument.
std::string midi_file(const Arrangement& tune);

}  // namespace tombrello::music
