#include "shell/settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "headless/headless_window.h"
#include "shell/pacing.h"
#include "shell/player_name.h"

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

std::string options(const std::string& names = "LEO\r\nADA\r\nPIA\r\nUGO\r\n") {
  return " 3 \r\n" + names + " 0 \r\n 101 \r\n 105 \r\n";
}

/// The deck in falling order with the first slots given, then the dealer.
std::string deck(const std::string& first_slots = "", int given = 0,
                 const std::string& dealer = "4") {
  std::string lines = first_slots;
  for (int slot = given + 1; slot <= kCards; ++slot) {
    lines += " " + std::to_string(kCards + 1 - slot) + " \r\n";
  }
  return lines + " " + dealer + " \r\n";
}

TEST(Settings, AWholeFileRoundTrips) {
  const std::string file = options() + deck();
  ASSERT_EQ(std::count(file.begin(), file.end(), '\n'), 113);
  Reading read(file);
  EXPECT_EQ(read.s.velocita, 3);
  EXPECT_EQ(read.s.nomi, (std::array<std::string, 4>{"LEO", "ADA", "PIA", "UGO"}));
  EXPECT_EQ(read.s.fruscio_opz, 0);
  EXPECT_EQ(read.s.brano, 101);
  EXPECT_FLOAT_EQ(read.s.scala_carte, 1.05F);
  EXPECT_EQ(read.s.mazzo[1], 104);
  EXPECT_EQ(read.s.mazzo[104], 1);
  EXPECT_TRUE(read.s.mano_salvata);
  EXPECT_EQ(read.s.cartaro, 4);
  EXPECT_EQ(read.s.di_turno, 1);
  EXPECT_EQ(read.written(), file) << "blanks, CR LF and 105 included";
  for (const char* scale : {"25", "62.5", "99.99", "133.3333", "200"}) {
    std::string other = file;
    other.replace(file.find("105"), 3, scale);
    EXPECT_EQ(Reading(other).written(), other) << "seven digits at most";
  }
}

TEST(Settings, EightLinesAreAFileWithoutADeal) {
  Reading read(options());
  EXPECT_TRUE(read.is_sound());
  EXPECT_EQ(read.s.nomi[3], "UGO");
  EXPECT_FALSE(read.s.mano_salvata);
  EXPECT_EQ(read.s.di_turno, 1);
  const std::string written = read.written();
  EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 113);
  EXPECT_TRUE(written.ends_with(" 0 \r\n 0 \r\n"));
  EXPECT_FALSE(Reading(written).s.mano_salvata);
}

TEST(Settings, TheFirstRunHasNoFile) {
  Reading read;
  EXPECT_TRUE(read.is_sound());
  EXPECT_TRUE(read.archive.files.empty()) << "reading writes nothing";
  EXPECT_TRUE(read.written().starts_with(
      " 1 \r\nTU\r\nOVEST\r\nNORD\r\nEST\r\n 1 \r\n 0 \r\n 100 \r\n 0 \r\n"));
}

TEST(Settings, AFieldOutOfItsRangeTakesItsFirstRunValueAndTheRestIsRead) {
  for (const char* bad : {"0", "4", "-1", "256", "1.5", "x", "1x", "1e99", "nan", "-inf", "\x01"}) {
    Reading read(" " + std::string(bad) + " \r\n" + options().substr(5) + deck());
    EXPECT_TRUE(read.is_sound()) << bad;
    EXPECT_EQ(read.s.velocita, 1) << bad;
    EXPECT_EQ(read.s.nomi[0], "LEO") << bad;
    EXPECT_TRUE(read.s.mano_salvata) << bad;
  }
  for (const char* bad : {"24.9", "200.1", "0", "-100", "1e30", ""}) {
    Reading read(" 2 \r\nA\r\nB\r\nC\r\nD\r\n  2 \r\n 102 \r\n" + std::string(bad) + "\r\n" +
                 deck());
    EXPECT_TRUE(read.is_sound());
    EXPECT_EQ(read.s.scala_carte, 1) << bad;
    EXPECT_EQ(read.s.fruscio_opz, 1);
    EXPECT_EQ(read.s.brano, 0);
    EXPECT_TRUE(read.s.mano_salvata);
  }
}

TEST(Settings, ADeckIsKeptWholeOrNotAtAll) {
  for (int dealer = 1; dealer <= kSeats; ++dealer) {
    EXPECT_EQ(Reading(options() + deck("", 0, std::to_string(dealer))).s.cartaro, dealer);
  }
  EXPECT_TRUE(Reading(options() + deck(" 1 \r\n 1 \r\n", 2)).s.mano_salvata)
      << "a card twice is played";
  const std::string whole = options() + deck();
  for (const std::string& file :
       {options() + deck(" 0 \r\n", 1), options() + deck(" 105 \r\n", 1),
        options() + deck(" 1.5 \r\n", 1), options() + deck(" \r\n", 1),
        options() + deck("", 0, "0"), options() + deck("", 0, "5"), options() + deck("", 0, ""),
        whole.substr(0, whole.size() - 8), whole.substr(0, options().size() + 12)}) {
    const Reading read(file);
    EXPECT_FALSE(read.s.mano_salvata);
    EXPECT_TRUE(read.is_sound()) << "dropped whole";
  }
}

TEST(Settings, NamesThatTheFileCantHold) {
  struct Row {
    const char* lines;
    std::array<std::string, 4> names;
  };
  for (const Row& row : {
           Row{"  ANNA  \r\n\r\n\"B C\"\r\nD\r\n", {"ANNA", "", "B C", "D"}},
           Row{"ÀÈÌÒÙÉÇ\r\nABCDEFGH\r\nC\x01\r\nD\x7F\r\n", {"ÀÈÌÒÙÉÇ", "OVEST", "NORD", "EST"}},
           Row{"A,B\r\nC\r\nD\r\nE\r\n", {"A", "B", "C", "D"}},  // and what follows shifts
           Row{"\" A \"\r\nB\r\nC\r\nD\r\n", {"A", "B", "C", "D"}},
           Row{"A\r\n\"B\r\nC\r\nD\r\n", {"A", "OVEST", "NORD", "EST"}},
           Row{"NICCOL\xD2\r\n\x80\x8C\x9F\r\nC\r\nD\r\n", {"NICCOLÒ", "€ŒŸ", "C", "D"}},
           Row{"\xE0\x80\x80\r\nB\r\nC\r\nD\r\n", {"à€€", "B", "C", "D"}},       // no shortest form
           Row{"\xED\xA0\x80\r\nB\r\nC\r\nD\r\n", {"í\u00A0€", "B", "C", "D"}},  // half a surrogate
           Row{"A\xC2\x85\r\nB\r\nC\r\nD\r\n", {"TU", "B", "C", "D"}},  // a control character
           Row{"straßeß\r\nB\r\nC\r\nD\r\n", {"straßeß", "B", "C", "D"}},
       }) {
    const Reading read(options(row.lines) + deck());
    EXPECT_EQ(read.s.nomi, row.names) << row.lines;
    EXPECT_TRUE(read.is_sound()) << row.lines;
  }
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

// Each of these can only be judged by what holds for every file: all fields in range, and what
// is written from them reads back the same.
void expect_survived(const std::string& file) {
  Reading read(file);
  ASSERT_TRUE(read.is_sound());
  const std::string written = read.written();
  ASSERT_EQ(std::count(written.begin(), written.end(), '\n'), 113);
  ASSERT_EQ(Reading(written).written(), written);
}

TEST(Settings, NoDamageHurts) {
  const std::string whole = options() + deck();
  for (std::size_t end = 0; end < whole.size(); ++end) expect_survived(whole.substr(0, end));
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const char byte : {'\0', 'x', '"', ',', '\n', '\r', '-', '.', '9', '\xFF'}) {
      std::string hurt = whole;
      hurt[at] = byte;
      expect_survived(hurt);
    }
  }
  std::mt19937_64 random(7);
  for (int i = 0; i < 500; ++i) {
    std::string noise(random() % 2000, '\0');
    for (char& byte : noise) byte = static_cast<char>(random());
    expect_survived(noise);
  }
  expect_survived(std::string(1000, '\0'));
  std::string marks;
  for (int i = 0; i < 21'845; ++i) marks += "\uFEFF";
  expect_survived(marks + whole);
  const std::string huge(100'000'000, '7');
  for (const std::string& file : {huge, " 1 \r\n" + huge, whole + huge}) expect_survived(file);
  EXPECT_TRUE(Reading(whole + huge).s.mano_salvata);
}

TEST(Settings, AFolderThatCantBeWrittenKeepsTheOldFile) {
  Reading read(options() + deck());
  read.archive.writable = false;
  read.s.nomi[0] = "NEW";
  EXPECT_EQ(read.written(), options() + deck());
  read.archive.writable = true;
  read.settings.Registra_Players();
  EXPECT_EQ(read.archive.files["Players"], "NEW\r\nADA\r\nPIA\r\nUGO\r\n");
  EXPECT_EQ(read.archive.files[kFile], options() + deck());
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
