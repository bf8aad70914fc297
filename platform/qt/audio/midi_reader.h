#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tombrello::qt {

struct MidiEvent {
  std::int64_t tick;    ///< from the start of its track
  int track;            ///< from 0
  int status;           ///< 0x80..0xef of a channel, 0xff of a meta event
  int first;            ///< first data byte; the kind of a meta event
  int second;           ///< second data byte, 0 if there is none
  std::uint32_t tempo;  ///< microseconds a quarter, of a tempo event
};

struct MidiFile {
  int format = 0;
  int tracks = 0;
  int ticks_per_quarter = 0;      ///< 0 where time is counted in seconds
  double seconds_per_tick = 0;    ///< where time is counted in seconds
  std::vector<MidiEvent> events;  ///< track by track; system messages are left out

  /// From the start to the last event, however far away a damaged file says that it is.
  double seconds() const;
};

/// Nothing if the bytes aren't a whole MIDI file. Any bytes may be given.
std::optional<MidiFile> read_midi(const std::string& bytes);

}  // namespace tombrello::qt
