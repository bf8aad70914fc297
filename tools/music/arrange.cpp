#include "tools/music/arrange.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <stdexcept>

namespace tombrello::music {
namespace {

/// What a way of accompanying is given: one chord, where its bar began, and where to put notes.
struct Span {
  const Chord& chord;
  int at;      ///< where it starts in the tune
  int in_bar;  ///< where it starts in its bar
  int bar;
  int beat;
  int transpose;
  std::vector<Played>& out;

  void add(int start, int length, int pitch, int velocity) const {
    out.push_back({at + start, length * 15 / 16, pitch + transpose, velocity});
  }
};

int at_or_above(int pitch_class, int lowest) {
  return lowest + ((pitch_class - lowest) % 12 + 12) % 12;
}

std::vector<int> close_chord(const Chord& chord) {
  std::vector<int> pitches;
  for (const int tone : chord.tones) pitches.push_back(at_or_above(tone, 55));
  std::sort(pitches.begin(), pitches.end());
  return pitches;
}

void strike(const Span& span, int start, int length, int velocity) {
  for (const int pitch : close_chord(span.chord)) span.add(start, length, pitch, velocity);
}

/// The root where the chord begins, and its fifth after each half of a long bar.
void bass(const Span& span) {
  const int root = at_or_above(span.chord.bass, 38);
  const bool long_bar = span.chord.length == 4 * span.beat;
  const int step = long_bar ? 2 * span.beat : span.chord.length;
  for (int start = 0; start < span.chord.length; start += step) {
    const bool again = start > 0 && span.chord.bass == span.chord.tones.front();
    const int pitch = again ? at_or_above(span.chord.tones.at(2), 38) : root;
    span.add(start, step, pitch, start == 0 ? 78 : 68);
  }
}

/// The chord on every beat of the bar but the first (and the third of four).
void waltz(const Span& span) {
  const int beats = span.bar / span.beat;
  for (int start = 0; start < span.chord.length; start += span.beat) {
    const int beat = (span.in_bar + start) / span.beat;
    const bool strong = beat == 0 || (beats == 4 && beat == 2);
    if (!strong) strike(span, start, span.beat * 3 / 4, 52);
  }
}

void pad(const Span& span) {
  strike(span, 0, span.chord.length * 16 / 15, 50);
}

void pulse(const Span& span) {
  for (int start = 0; start < span.chord.length; start += kQuarter / 2)
    strike(span, start, kQuarter / 4, start % span.beat == 0 ? 54 : 44);
}

/// A broken chord in eighths, up and down again over an octave and more.
void arpeggio(const Span& span) {
  std::vector<int> ladder;
  for (const int lowest : {48, 60})
    for (const int tone : span.chord.tones) ladder.push_back(at_or_above(tone, lowest));
  std::sort(ladder.begin(), ladder.end());
  ladder.erase(std::unique(ladder.begin(), ladder.end()), ladder.end());
  const int top = static_cast<int>(ladder.size()) - 1;
  for (int start = 0, step = 0; start < span.chord.length; start += kQuarter / 2, ++step) {
    const int turn = step % (2 * top);
    const int rung = turn <= top ? turn : 2 * top - turn;
    span.add(start, kQuarter, ladder[static_cast<std::size_t>(rung)], step == 0 ? 64 : 54);
  }
}

/// Low, high, middle, high, in eighths.
void alberti(const Span& span) {
  const std::vector<int> pitches = close_chord(span.chord);
  static constexpr int order[] = {0, 2, 1, 2};
  for (int start = 0, step = 0; start < span.chord.length; start += kQuarter / 2, ++step)
    span.add(start, kQuarter / 2, pitches[static_cast<std::size_t>(order[step % 4])],
             step % 4 == 0 ? 62 : 52);
}

using Way = void (*)(const Span&);

Way way_of(const std::string& name) {
  static const std::map<std::string, Way> ways = {{"bass", bass},         {"waltz", waltz},
                                                  {"pad", pad},           {"pulse", pulse},
                                                  {"arpeggio", arpeggio}, {"alberti", alberti}};
  const auto found = ways.find(name);
  return found == ways.end() ? nullptr : found->second;
}

void play_voice(const std::vector<Note>& notes, const Score& score, int at, int transpose,
                std::vector<Played>& out) {
  for (const Note& note : notes) {
    const int in_bar = note.start % score.bar();
    const int accent = in_bar == 0 ? 8 : in_bar % score.beat() == 0 ? 4 : 0;
    out.push_back({at + note.start, note.length * 15 / 16, note.pitch + transpose, 88 + accent});
  }
}

void play_chords(const Way way, const Section& section, const Score& score, int at, int transpose,
                 std::vector<Played>& out) {
  for (const Chord& chord : section.chords) {
    if (chord.tones.empty()) continue;
    way({chord, at + chord.start, chord.start % score.bar(), score.bar(), score.beat(), transpose,
         out});
  }
}

/// A phrase of four bars grows toward its middle and dies away.
int swell(int in_section, int bar) {
  const double share = static_cast<double>(in_section % (4 * bar)) / (4 * bar);
  return static_cast<int>(std::lround(-8 * std::cos(2 * std::numbers::pi * share)));
}

void play_part(const Part& part, const Pass& pass, const Score& score, int at, Arrangement& tune) {
  const Section& section = score.sections.at(pass.section);
  const auto octave = part.what.find_first_of("+-");
  const std::string what = part.what.substr(0, octave);
  const int transpose =
      pass.transpose + (octave == part.what.npos ? 0 : 12 * std::stoi(part.what.substr(octave)));
  std::vector<Played> notes;
  if (const auto voice = section.voices.find(what); voice != section.voices.end()) {
    play_voice(voice->second, score, at, transpose, notes);
  } else if (const Way way = way_of(what); way != nullptr) {
    play_chords(way, section, score, at, transpose, notes);
  } else {
    throw std::runtime_error(pass.section + " has no " + part.what);
  }
  const int end = at + score.length_of(pass);
  std::erase_if(notes, [&](const Played& note) { return note.start >= end; });
  for (Played& note : notes) {
    note.length = std::min(note.length, end - note.start);
    note.velocity += swell(note.start - at, score.bar()) - (pass.soft ? 8 : 0);
  }
  auto& out = tune.instruments[part.instrument];
  out.insert(out.end(), notes.begin(), notes.end());
}

void mark_tempo(Arrangement& tune, int start, int tempo) {
  if (tune.tempos.empty() || tune.tempos.back().tempo != tempo)
    tune.tempos.push_back({start, tempo});
}

/// Slower in six steps over the last two bars, down to three quarters of the tempo.
void mark_ritard(const Pass& pass, const Score& score, Arrangement& tune) {
  constexpr int steps = 6;
  const int end = tune.length + score.length_of(pass);
  for (int step = 0; step < steps; ++step)
    mark_tempo(tune, end - 2 * score.bar() * (steps - step) / steps,
               pass.tempo * (100 - 4 * (step + 1)) / 100);
}

/// A key that is struck again is let go first, and two voices on one key are one.
void part_same_pitches(std::vector<Played>& notes) {
  std::stable_sort(notes.begin(), notes.end(), [](const Played& one, const Played& other) {
    return one.start != other.start ? one.start < other.start : one.pitch < other.pitch;
  });
  std::map<int, std::size_t> last;
  for (std::size_t i = 0; i < notes.size(); ++i) {
    const auto before = last.find(notes[i].pitch);
    if (before != last.end()) {
      Played& held = notes[before->second];
      held.length = std::min(held.length, notes[i].start - held.start);
    }
    last[notes[i].pitch] = i;
  }
  std::erase_if(notes, [](const Played& note) { return note.length <= 0; });
}

/// Nobody waits for an upbeat's rests.
void begin_with_first_note(Arrangement& tune) {
  int first = tune.length;
  for (const auto& [name, notes] : tune.instruments)
    if (!notes.empty()) first = std::min(first, notes.front().start);
  for (auto& [name, notes] : tune.instruments)
    for (Played& note : notes) note.start -= first;
  for (TempoMark& mark : tune.tempos) mark.start = std::max(0, mark.start - first);
  tune.length -= first;
}

}  // namespace

Arrangement arrange(const Score& score) {
  Arrangement tune{
      score.title, score.numerator, score.denominator, score.volume, score.beat(), 0, {}, {}};
  for (const Pass& pass : score.passes) {
    mark_tempo(tune, tune.length, pass.tempo);
    if (pass.ritard) mark_ritard(pass, score, tune);
    for (const Part& part : pass.parts) play_part(part, pass, score, tune.length, tune);
    tune.length += score.length_of(pass);
  }
  for (auto& [name, notes] : tune.instruments) part_same_pitches(notes);
  play_by_hand(tune);
  for (auto& [name, notes] : tune.instruments) part_same_pitches(notes);
  begin_with_first_note(tune);
  return tune;
}

}  // namespace tombrello::music
