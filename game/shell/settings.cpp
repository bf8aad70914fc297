#include "shell/settings.h"

#include <array>
#include <charconv>
#include <cmath>

#include "shell/field_reader.h"
#include "shell/player_name.h"

namespace tombrello {
namespace {

constexpr const char* kSettingsFile = "config.zvq";
constexpr const char* kPlayersFile = "Players";
// Many times the size of a whole file; what lies beyond can't hold a field.
constexpr std::size_t kMostBytes = std::size_t{64} * 1024;

const std::array<std::string, kSeats> kFirstNames = {"TU", "OVEST", "NORD", "EST"};
constexpr double kLeastScale = 25;
constexpr double kMostScale = 200;

double in_range(std::optional<double> value, double least, double most, double otherwise) {
  return value && *value >= least && *value <= most ? *value : otherwise;
}

int whole_in_range(std::optional<double> value, int least, int most, int otherwise) {
  const double field = in_range(value, least, most, otherwise);
  return std::floor(field) == field ? static_cast<int>(field) : otherwise;
}

// One blank in front, the place of the sign, and one behind.
std::string number_line(const std::string& digits) {
  std::string line(1, ' ');
  line += digits;
  line += " \r\n";
  return line;
}

std::string number_line(float value) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                 std::chars_format::general, 7);
  return number_line(std::string(digits.data(), end.ptr));
}

std::string number_line(int value) {
  return number_line(std::to_string(value));
}

void read_deck(State& s, FieldReader& fields) {
  std::array<std::int16_t, kCards + 1> deck{};
  bool whole = true;
  for (int slot = 1; slot <= kCards; ++slot) {
    deck[slot] = static_cast<std::int16_t>(whole_in_range(fields.number(), 1, kCards, 0));
    if (deck[slot] == 0) whole = false;
  }
  const int dealer = whole_in_range(fields.number(), 1, kSeats, 0);
  s.mano_salvata = whole && dealer != 0;
  if (!s.mano_salvata) deck = {};
  s.mazzo = deck;
  s.cartaro = static_cast<std::uint8_t>(s.mano_salvata ? dealer : 0);
}

}  // namespace

void Settings::Set_Read() {
  const std::string content = as_utf8(archive_.read(kSettingsFile, kMostBytes).value_or(""));
  FieldReader fields(content);
  s_.velocita = static_cast<std::uint8_t>(whole_in_range(fields.number(), 1, 3, 1));
  for (std::size_t i = 0; i < kFirstNames.size(); ++i) {
    const auto name = fields.text();
    s_.nomi[i] = name && is_storable_name(*name) ? without_outer_blanks(*name) : kFirstNames[i];
  }
  s_.fruscio_opz = static_cast<std::uint8_t>(whole_in_range(fields.number(), 0, 1, 1));
  s_.brano = static_cast<std::uint8_t>(whole_in_range(fields.number(), 0, 101, 0));
  s_.scala_carte =
      static_cast<float>(in_range(fields.number(), kLeastScale, kMostScale, 100)) / 100;
  read_deck(s_, fields);
  s_.di_turno = static_cast<std::uint8_t>(next_seat(s_.cartaro));
}

void Settings::Set_Write() {
  std::string content = number_line(int{s_.velocita});
  for (const auto& name : s_.nomi) content += name + "\r\n";
  content += number_line(int{s_.fruscio_opz});
  content += number_line(int{s_.brano});
  content += number_line(s_.scala_carte * 100);
  for (int slot = 1; slot <= kCards; ++slot) content += number_line(int{s_.mazzo[slot]});
  content += number_line(int{s_.cartaro});
  archive_.replace(kSettingsFile, content);
}

std::string Settings::complaint() const {
  const std::string lost = "Opzioni, nomi e ultima mano non si possono salvare: ";
  switch (archive_.trouble()) {
    case Trouble::none:
      return {};
    case Trouble::full:
      return lost + "non c'è più spazio";
    case Trouble::refused:
      return lost + "manca il permesso di scrivere";
    case Trouble::broken:
      break;
  }
  return lost + "il disco non risponde";
}

void Settings::Registra_Players() {
  std::string content;
  for (const auto& name : s_.nomi) content += name + "\r\n";
  archive_.replace(kPlayersFile, content);
}

}  // namespace tombrello
