#include "tools/music/score.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace tombrello::music {
namespace {

int pitch_class(const std::string& text, std::size_t& at) {
  static const std::string letters = "c d ef g a b";
  const char lower = static_cast<char>(text.at(at) | 0x20);
  const auto found = letters.find(lower);
  if (found == std::string::npos || lower == ' ') throw std::runtime_error("no note: " + text);
  int value = static_cast<int>(found);
  ++at;
  if (at < text.size() && text[at] == '#') return ++at, value + 1;
  if (at < text.size() && text[at] == 'b') return ++at, value - 1;
  return value;
}

/// "4" a quarter, "8." a dotted eighth, "16" and so on.
int ticks(const std::string& text) {
  const bool dotted = text.ends_with('.');
  const int denominator = std::stoi(text);
  const int plain = denominator > 0 ? 4 * kQuarter / denominator : 0;
  if (plain * denominator != 4 * kQuarter) throw std::runtime_error("no length: " + text);
  return dotted ? plain * 3 / 2 : plain;
}

std::vector<int> intervals(const std::string& quality) {
  static const std::map<std::string, std::vector<int>> known = {
      {"", {0, 4, 7}},    {"m", {0, 3, 7}},    {"7", {0, 4, 7, 10}},    {"m7", {0, 3, 7, 10}},
      {"dim", {0, 3, 6}}, {"sus4", {0, 5, 7}}, {"maj7", {0, 4, 7, 11}}, {"m6", {0, 3, 7, 9}},
  };
  const auto found = known.find(quality);
  if (found == known.end()) throw std::runtime_error("no chord: " + quality);
  return found->second;
}

Chord read_chord(const std::string& text) {
  if (text == "-") return {0, 0, 0, {}};
  std::size_t at = 0;
  const int root = pitch_class(text, at);
  const auto slash = text.find('/');
  Chord chord{0, 0, (root + 12) % 12, {}};
  for (const int interval : intervals(text.substr(at, slash == text.npos ? text.npos : slash - at)))
    chord.tones.push_back((root + interval + 12) % 12);
  if (slash != text.npos) {
    at = slash + 1;
    chord.bass = (pitch_class(text, at) + 12) % 12;
  }
  return chord;
}

std::vector<std::string> words(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> all;
  for (std::string word; in >> word;) all.push_back(word);
  return all;
}

std::vector<std::string> bars(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> all;
  for (std::string bar; std::getline(in, bar, '|');)
    if (!words(bar).empty()) all.push_back(bar);
  return all;
}

class Reader {
 public:
  Score read(const std::string& text) {
    std::istringstream in(text);
    int number = 0;
    for (std::string line; std::getline(in, line);) {
      ++number;
      try {
        read_line(line.substr(0, line.find(';')));
      } catch (const std::exception& error) {
        throw std::runtime_error("line " + std::to_string(number) + ": " + error.what());
      }
    }
    finish();
    return score_;
  }

 private:
  void read_line(const std::string& line) {
    std::istringstream in(line);
    std::string word;
    if (!(in >> word)) return;
    std::string rest;
    std::getline(in >> std::ws, rest);
    if (word == "title") {
      score_.title = rest;
    } else if (word == "bar") {
      score_.numerator = std::stoi(rest);
      score_.denominator = std::stoi(rest.substr(rest.find('/') + 1));
    } else if (word == "tempo") {
      tempo_ = std::stoi(rest);
    } else if (word == "volume") {
      score_.volume = std::stoi(rest);
    } else if (word == "section") {
      section_ = &score_.sections[rest];
    } else if (word == "play") {
      read_pass(rest);
    } else {
      read_music(word, rest);
    }
  }

  void read_pass(const std::string& text) {
    Pass pass;
    pass.tempo = tempo_;
    for (const std::string& word : words(text)) {
      const auto equals = word.find('=');
      const std::string value = equals == word.npos ? "" : word.substr(equals + 1);
      const std::string key = word.substr(0, equals);
      if (key == "tempo")
        pass.tempo = std::stoi(value);
      else if (key == "transpose")
        pass.transpose = std::stoi(value);
      else if (key == "bars")
        pass.bars = std::stoi(value);
      else if (key == "soft")
        pass.soft = true;
      else if (key == "ritard")
        pass.ritard = true;
      else if (equals == word.npos)
        pass.section = word;
      else
        pass.parts.push_back({key, value});
    }
    if (!score_.sections.contains(pass.section)) throw std::runtime_error("no such section");
    score_.passes.push_back(pass);
  }

  void read_music(const std::string& voice, const std::string& text) {
    if (section_ == nullptr) throw std::runtime_error("music outside a section");
    int& at = section_->lengths[voice];
    for (const std::string& bar : bars(text)) {
      const int start = at;
      voice == "chords" ? read_chords(bar, at) : read_notes(section_->voices[voice], bar, at);
      if (at - start != score_.bar()) throw std::runtime_error("bar doesn't add up:" + bar);
    }
    section_->length = std::max(section_->length, at);
  }

  void read_chords(const std::string& bar, int& at) {
    const auto names = words(bar);
    const int each = score_.bar() / static_cast<int>(names.size());
    std::string held;  // a chord named again goes on
    for (const std::string& name : names) {
      Chord chord = read_chord(name);
      chord.start = at;
      chord.length = each;
      at += each;
      if (name == held) {
        section_->chords.back().length += each;
      } else {
        section_->chords.push_back(chord);
      }
      held = name;
    }
  }

  /// "c#5:8" is a note with its length, "c#5" one as long as the last, "r" a rest; a "~" at the
  /// front of a note makes the note before it longer.
  void read_notes(std::vector<Note>& voice, const std::string& bar, int& at) {
    for (std::string word : words(bar)) {
      if (const auto colon = word.find(':'); colon != word.npos) {
        length_ = ticks(word.substr(colon + 1));
        word.resize(colon);
      }
      if (word == "~") {
        voice.at(voice.size() - 1).length += length_;
      } else if (word != "r") {
        std::size_t place = 0;
        const int name = pitch_class(word, place);
        voice.push_back({at, length_, name + 12 * (std::stoi(word.substr(place)) + 1)});
      }
      at += length_;
    }
  }

  void finish() {
    if (score_.passes.empty()) throw std::runtime_error("nothing to play");
    for (const auto& [name, section] : score_.sections) {
      if (section.length == 0) throw std::runtime_error("empty section " + name);
      for (const auto& [voice, length] : section.lengths) {
        if (length != section.length)
          throw std::runtime_error(voice + " in " + name + " isn't as long as the rest");
      }
    }
  }

  Score score_;
  Section* section_ = nullptr;
  int tempo_ = 100;
  int length_ = kQuarter;
};

}  // namespace

int Score::beat() const {
  const bool compound = denominator == 8 && numerator % 3 == 0 && numerator > 3;
  return compound ? kQuarter * 3 / 2 : 4 * kQuarter / denominator;
}

int Score::length_of(const Pass& pass) const {
  const int whole = sections.at(pass.section).length;
  return pass.bars > 0 ? std::min(whole, pass.bars * bar()) : whole;
}

Score read_score(const std::string& text) {
  return Reader().read(text);
}

}  // namespace tombrello::music
