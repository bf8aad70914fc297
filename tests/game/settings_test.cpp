#include "shell/settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "shell/field_reader.h"
#include "shell/pacing.h"
#include "shell/player_name.h"
#include "tests/game/game.h"

namespace tombrello {
namespace {

constexpr const char* kFile = "config.zvq";

/// A run's settings: read from a file, or from none.
struct Reading {
  Reading() { settings.Set_Read(); }
  explicit Reading(std::string content) {
    archive.files[kFile] = std::move(content);
    settings.Set_Read();
  }
  std::string written() {
    settings.Set_Write();
    return archive.files[kFile];
  }
  bool is_sound() const {
    const bool names = std::all_of(s.nomi.begin(), s.nomi.end(), is_storable_name);
    const bool deck = std::all_of(s.mazzo.begin() + 1, s.mazzo.end(), [this](int card) {
      return s.mano_salvata ? card >= 1 && card <= kCards : card == 0;
    });
    return names && deck && s.velocita >= 1 && s.velocita <= 3 && s.fruscio_opz <= 1 &&
           s.brano <= 101 && s.scala_carte >= 0.25F && s.scala_carte <= 2 && s.cartaro <= 4 &&
           (s.cartaro != 0) == s.mano_salvata && s.di_turno == next_seat(s.cartaro);
  }

  State s;
  MemoryArchive archive;
  Settings settings{s, archive};
};

/// The whole file with another line in place of this one, counted from 1.
std::string with_line(int number, const std::string& line) {
  std::string file = kept_deal();
  std::size_t at = 0;
  while (--number > 0) at = file.find('\n', at) + 1;
  return file.replace(at, file.find("\r\n", at) - at, line);
}

/// What is written after this file was read: the options, the deal's ends, and whose turn it is.
std::string kept_of(const std::string& file) {
  Reading read(file);
  EXPECT_TRUE(read.is_sound());
  std::string written = read.written();
  EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 113);
  EXPECT_EQ(Reading(written).written(), written);
  std::string kept;
  std::istringstream lines(written);
  int number = 0;
  for (std::string line; std::getline(lines, line);) {
    if (++number < 10 || number == 113) kept += "|" + line.substr(0, line.size() - 1);
  }
  return kept + "| seat " + std::to_string(read.s.di_turno) + " begins\n";
}

// What stands for one line of a file: tests/game/settings.txt tells what is kept of it.
const std::map<int, Lines> kVariants = {
    {1, {"0", "1", "3", "4", "-1", "256", "1.5", "x", "3x", "1e99", "nan", "-inf", "\x01", ""}},
    {2,
     {"  ANNA  ", "ANNA\t", " \"B C\"", "", "\"B C\"", "ÀÈÌÒÙÉÇ", "ABCDEFGH", "C\x01", "D\x7F",
      "A,B", "\" A \"", "\"B", "NICCOL\xD2", "\x80\x8C\x9F", "\xE0\x80\x80", "\xED\xA0\x80",
      "A\xC2\x85", "straßeß"}},
    {5, {"OVEST", "A,B"}},
    {6, {"0", "1", "2", "-1"}},
    {7, {"1", "100", "101", "102", "-1"}},
    {8,
     {"24.9", "25", "62.5", "99.99", "133.3333", "200", "200.1", "0", "-100", "1e30", "",
      "\t105 ,"}},
    {9, {"0", "1", "104", "105", "1.5", ""}},
    {112, {"0", "7"}},
    {113, {"0", "1", "2", "3", "5", ""}}};

TEST(Settings, OfAnyFileAreKeptAsTheyWere) {
  EXPECT_EQ(Reading(kept_deal()).written(), kept_deal()) << "blanks and CR LF included";
  std::string text = "the whole file: " + kept_of(kept_deal());
  for (const auto& [number, variants] : kVariants) {
    for (const auto& line : variants) {
      std::string shown = as_utf8(line);
      std::replace_if(
          shown.begin(), shown.end(), [](char c) { return c >= 0 && c < ' '; }, '?');
      text += "line " + std::to_string(number) + " '" + shown +
              "': " + kept_of(with_line(number, line));
    }
  }
  const std::string whole = kept_deal();
  for (const char end : {'\n', '\r', ','}) {
    std::string file = whole;
    std::erase(file, '\r');
    std::replace(file.begin(), file.end(), '\n', end);
    text += "other ends of lines: " + kept_of(file);
  }
  for (const int lines : {0, 1, 5, 8, 9, 112}) {
    std::size_t end = 0;
    for (int i = 0; i < lines; ++i) end = whole.find('\n', end) + 1;
    text += std::to_string(lines) + " lines: " + kept_of(whole.substr(0, end));
  }
  expect_golden("settings.txt", text);
}

TEST(Settings, TheFirstRunHasNoFile) {
  Reading read;
  EXPECT_TRUE(read.archive.files.empty()) << "reading writes nothing";
  EXPECT_EQ(read.written(), Reading("").written());
}

TEST(Names, WhatIsTypedStandsInCapitalsWithoutOuterBlanks) {
  for (const auto& [typed, name] : {std::pair{" Zoë b ", "ZOË B"},
                                    {"  ", ""},
                                    {"straßeßß", "STRAßEß"},  // a letter that counts as one
                                    {"a,\"b\n\x7F\u2028c", "ABC"},
                                    {"漢字🂡漢字漢字漢字", "漢字🂡漢字漢字"},
                                    {"a\xFF", "A\uFFFD"}}) {
    EXPECT_EQ(name_from_typed(typed, plain_capital), name);
  }
}

// Each of these can only be judged by what holds for every file.
TEST(Settings, NoDamageHurts) {
  const std::string whole = kept_deal();
  for (std::size_t end = 0; end < whole.size(); ++end) (void)kept_of(whole.substr(0, end));
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const char byte : {'\0', 'x', '"', ',', '\n', '\r', '-', '.', '9', '\xFF'}) {
      std::string hurt = whole;
      hurt[at] = byte;
      (void)kept_of(hurt);
    }
  }
  std::mt19937_64 random(7);
  for (int i = 0; i < 500; ++i) {
    std::string noise(random() % 2000, '\0');
    for (char& byte : noise) byte = static_cast<char>(random());
    (void)kept_of(noise);
  }
  (void)kept_of(std::string(1000, '\0'));
  std::string marks;
  for (int i = 0; i < 21'845; ++i) marks += "\uFEFF";
  (void)kept_of(marks + whole);
  const std::string huge(100'000'000, '7');
  for (const std::string& file : {huge, " 1 \r\n" + huge, whole + huge}) (void)kept_of(file);
  EXPECT_TRUE(Reading(whole + huge).s.mano_salvata);
}

TEST(Settings, WhatCantBeWrittenIsToldAndKeepsTheOldFile) {
  Reading read(kept_deal());
  read.s.nomi[0] = "NEW";
  for (const auto& [trouble, reason] : {std::pair{Trouble::full, "spazio"},
                                        {Trouble::refused, "permesso"},
                                        {Trouble::broken, "disco"}}) {
    read.archive.to_come = trouble;
    EXPECT_EQ(read.written(), kept_deal());
    EXPECT_NE(read.settings.complaint().find(reason), std::string::npos);
  }
  read.archive.to_come = Trouble::none;
  read.settings.Registra_Players();
  EXPECT_EQ(read.settings.complaint(), "");
  EXPECT_EQ(read.archive.files["Players"], "NEW\r\nADA\r\nPIA\r\nUGO\r\n");
  EXPECT_EQ(read.archive.files[kFile], kept_deal());
}

TEST(Pacing, WholeMillisecondsRoundedDown) {
  struct Row {
    float x;
    int slow, middle, quick;
  };
  for (const Row& row :
       {Row{0.01F, 129, 64, 43}, Row{0.03F, 389, 194, 129}, Row{0.1F, 1300, 650, 433},
        Row{0.2F, 2600, 1300, 866}, Row{0.3F, 3900, 1950, 1300}, Row{1, 13000, 6500, 4333}}) {
    EXPECT_EQ(Pacing::milliseconds(row.x, 0.5F), row.slow);
    EXPECT_EQ(Pacing::milliseconds(row.x, 1), row.middle);
    EXPECT_EQ(Pacing::milliseconds(row.x, 1.5F), row.quick);
  }
}

}  // namespace
}  // namespace tombrello
