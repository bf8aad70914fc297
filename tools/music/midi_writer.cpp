#include <algorithm>
#include <stdexcept>

#include "tools/music/arrange.h"

namespace tombrello::music {
namespace {

void put(std::string& out, unsigned value, int bytes) {
  while (bytes-- > 0) out.push_back(static_cast<char>(value >> (8 * bytes) & 0xff));
}

/// Seven bits a byte, the highest first; all but the last byte have their top bit set.
void put_delta(std::string& out, unsigned value) {
  for (int shift = 21; shift > 0; shift -= 7)
    if (value >> shift) put(out, (value >> shift & 0x7f) | 0x80, 1);
  put(out, value & 0x7f, 1);
}

struct Event {
  int at;
  std::string bytes;
};

Event channel_event(int at, int status, int channel, int first, int second = -1) {
  Event event{at, {}};
  put(event.bytes, static_cast<unsigned>(status | channel), 1);
  put(event.bytes, static_cast<unsigned>(first), 1);
  if (second >= 0) put(event.bytes, static_cast<unsigned>(second), 1);
  return event;
}

Event meta_event(int at, int kind, const std::string& content) {
  Event event{at, {}};
  put(event.bytes, 0xff, 1);
  put(event.bytes, static_cast<unsigned>(kind), 1);
  put_delta(event.bytes, static_cast<unsigned>(content.size()));
  event.bytes += content;
  return event;
}

/// The events stay in their order where they come at the same time.
void put_track(std::string& out, std::vector<Event> events) {
  std::stable_sort(events.begin(), events.end(),
                   [](const Event& one, const Event& other) { return one.at < other.at; });
  std::string track;
  int now = 0;
  for (const Event& event : events) {
    put_delta(track, static_cast<unsigned>(event.at - now));
    track += event.bytes;
    now = event.at;
  }
  out += "MTrk";
  put(out, static_cast<unsigned>(track.size()), 4);
  out += track;
}

std::vector<Event> tempo_track(const Arrangement& tune, int end) {
  std::string metre;
  put(metre, static_cast<unsigned>(tune.numerator), 1);
  put(metre, tune.denominator == 8 ? 3 : 2, 1);
  put(metre, 0x1808, 2);
  std::vector<Event> events = {meta_event(0, 0x03, tune.title), meta_event(0, 0x58, metre)};
  for (const TempoMark& mark : tune.tempos) {
    std::string microseconds;
    put(microseconds, static_cast<unsigned>(60'000'000 / mark.tempo), 3);
    events.push_back(meta_event(mark.start, 0x51, microseconds));
  }
  events.push_back(meta_event(end, 0x2f, ""));
  return events;
}

/// A long note grows and dies away again, by some three decibels.
void put_swells(std::vector<Event>& events, const std::vector<Played>& notes, int channel,
                int shortest) {
  constexpr int rest = 120, steps = 8;
  constexpr int curve[steps] = {106, 113, 120, 125, 127, 123, 115, 106};
  const auto express = [&](int at, int value) {
    events.push_back(channel_event(at, 0xb0, channel, 11, value));
  };
  express(0, rest);
  int busy = 0;
  for (const Played& note : notes) {
    if (note.start < busy || note.length < shortest) continue;
    const int length = note.length * 15 / 16;
    for (int step = 0; step < steps; ++step)
      express(note.start + length * step / steps, curve[step]);
    busy = note.start + length;
    express(busy, rest);
  }
}

std::vector<Event> instrument_track(const std::string& name, const Arrangement& tune, int channel,
                                    int end) {
  const Instrument sound = instrument(name);
  const std::vector<Played>& notes = tune.instruments.at(name);
  const int level = std::clamp(sound.level * tune.volume / 100, 1, 127);
  std::vector<Event> events = {
      meta_event(0, 0x03, name), channel_event(0, 0xc0, channel, sound.program),
      channel_event(0, 0xb0, channel, 7, level), channel_event(0, 0xb0, channel, 10, sound.pan)};
  if (sound.held) put_swells(events, notes, channel, 2 * tune.beat * 9 / 10);
  // Ends come first, so that a key struck again at once is let go before.
  for (const Played& note : notes)
    events.push_back(channel_event(note.start + note.length, 0x80, channel, note.pitch, 64));
  for (const Played& note : notes)
    events.push_back(channel_event(note.start, 0x90, channel, note.pitch, note.velocity));
  events.push_back(channel_event(end, 0xb0, channel, 123, 0));
  events.push_back(meta_event(end, 0x2f, ""));
  return events;
}

}  // namespace

Instrument instrument(const std::string& name) {
  static const std::map<std::string, Instrument> known = {
      {"accordion", {21, 92, 60, true}},    {"bassoon", {70, 104, 72, true}},
      {"celesta", {8, 104, 76, false}},     {"cello", {42, 84, 78, true}},
      {"clarinet", {71, 84, 52, true}},     {"flute", {73, 88, 54, true}},
      {"guitar", {24, 98, 48, false}},      {"harp", {46, 86, 80, false}},
      {"harpsichord", {6, 118, 74, false}}, {"horn", {60, 84, 72, true}},
      {"musicbox", {10, 88, 64, false}},    {"oboe", {68, 74, 60, true}},
      {"piano", {0, 118, 64, false}},       {"pizzicato", {45, 92, 70, false}},
      {"recorder", {74, 84, 58, true}},     {"strings", {48, 58, 66, true}},
      {"vibraphone", {11, 84, 56, false}},  {"violin", {40, 78, 50, true}},
      {"contrabass", {43, 92, 66, true}},
  };
  const auto found = known.find(name);
  if (found == known.end()) throw std::runtime_error("no instrument called " + name);
  return found->second;
}

std::string midi_file(const Arrangement& tune) {
  const int end = tune.length + kQuarter;  // the last chord rings out
  std::string out = "MThd";
  put(out, 6, 4);
  put(out, 1, 2);
  put(out, static_cast<unsigned>(tune.instruments.size() + 1), 2);
  put(out, kQuarter, 2);
  put_track(out, tempo_track(tune, end));
  int channel = 0;
  for (const auto& [name, notes] : tune.instruments) {
    put_track(out, instrument_track(name, tune, channel, end));
    channel += channel == 8 ? 2 : 1;  // the tenth channel is the drums'
  }
  if (channel > 16) throw std::runtime_error("too many instruments");
  return out;
}

}  // namespace tombrello::music
