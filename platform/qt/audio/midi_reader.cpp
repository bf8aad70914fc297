#include "qt/audio/midi_reader.h"

#include <algorithm>

#include "qt/audio/bytes.h"

namespace tombrello::qt {
namespace {

constexpr int kTempo = 0x51;
constexpr int kEndOfTrack = 0x2f;

std::uint32_t variable_number(Bytes& in) {
  std::uint32_t value = 0;
  for (int i = 0; i < 4; ++i) {
    const std::uint32_t byte = in.number(1);
    value = value << 7 | (byte & 0x7f);
    if (byte < 0x80) return value;
  }
  throw std::out_of_range("number too long");
}

class TrackReader {
 public:
  TrackReader(std::string_view bytes, int track, std::vector<MidiEvent>& events)
      : in_(bytes), track_(track), events_(events) {}

  void read() {
    while (!ended_) {
      tick_ += variable_number(in_);
      if (in_.peek() >= 0x80) status_ = static_cast<int>(in_.number(1));
      if (status_ == 0xff) {
        read_meta();
      } else if (status_ >= 0xf0) {
        in_.take(variable_number(in_));
      } else {
        read_channel_event();
      }
    }
  }

 private:
  void read_meta() {
    const int kind = static_cast<int>(in_.number(1));
    Bytes content(in_.take(variable_number(in_)));
    const std::uint32_t tempo = kind == kTempo ? content.number(3) : 0;
    events_.push_back({tick_, track_, 0xff, kind, 0, tempo});
    ended_ = kind == kEndOfTrack;
  }

  // Without a status of its own an event has the one before it.
  void read_channel_event() {
    if (status_ < 0x80) throw std::out_of_range("no status");
    const int kind = status_ & 0xf0;
    const int first = static_cast<int>(in_.number(1));
    const int second = kind == 0xc0 || kind == 0xd0 ? 0 : static_cast<int>(in_.number(1));
    events_.push_back({tick_, track_, status_, first, second, 0});
  }

  Bytes in_;
  int track_;
  std::vector<MidiEvent>& events_;
  std::int64_t tick_ = 0;
  int status_ = 0;
  bool ended_ = false;
};

/// Either parts of a quarter, or frames a second and parts of a frame.
void read_division(std::uint32_t division, MidiFile& file) {
  if (division < 0x8000) {
    file.ticks_per_quarter = static_cast<int>(division);
    if (division == 0) throw std::out_of_range("no time");
    return;
  }
  const auto frames = 0x100 - (division >> 8);
  const auto parts = division & 0xff;
  if (parts == 0) throw std::out_of_range("no time");
  file.seconds_per_tick = 1.0 / (frames * parts);
}

MidiFile read(Bytes in) {
  MidiFile file;
  if (in.take(4) != "MThd") throw std::out_of_range("no header");
  Bytes header(in.take(in.number(4)));
  file.format = static_cast<int>(header.number(2));
  file.tracks = static_cast<int>(header.number(2));
  if (file.tracks == 0) throw std::out_of_range("no tracks");
  read_division(header.number(2), file);
  for (int track = 0; track < file.tracks;) {
    const auto name = in.take(4);
    const auto content = in.take(in.number(4));
    if (name == "MTrk") TrackReader(content, track++, file.events).read();
  }
  return file;
}

}  // namespace

double MidiFile::seconds() const {
  std::int64_t last = 0;
  std::vector<MidiEvent> tempos;
  for (const MidiEvent& event : events) {
    last = std::max(last, event.tick);
    if (event.status == 0xff && event.first == kTempo) tempos.push_back(event);
  }
  if (ticks_per_quarter == 0) return static_cast<double>(last) * seconds_per_tick;
  std::stable_sort(tempos.begin(), tempos.end(), [](const MidiEvent& one, const MidiEvent& other) {
    return one.tick < other.tick;
  });
  double microseconds = 0;
  double tempo = 500'000;
  std::int64_t now = 0;
  for (const MidiEvent& mark : tempos) {
    microseconds += static_cast<double>(mark.tick - now) * tempo;
    now = mark.tick;
    tempo = mark.tempo;
  }
  microseconds += static_cast<double>(last - now) * tempo;
  return microseconds / ticks_per_quarter / 1e6;
}

std::optional<MidiFile> read_midi(const std::string& bytes) {
  try {
    return read(Bytes(bytes));
  } catch (const std::out_of_range&) {
    return std::nullopt;
  }
}

}  // namespace tombrello::qt
