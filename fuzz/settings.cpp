// A settings file of any bytes gives settings that are sound, and what is written from them reads
// back the same.

#include "shell/settings.h"

#include <algorithm>

#include "fuzz/fuzz.h"
#include "headless/headless_window.h"
#include "shell/player_name.h"

namespace tombrello {
namespace {

constexpr const char* kFile = "config.zvq";

bool is_sound(const State& s) {
  const auto is_card = [&s](int card) {
    return s.mano_salvata ? card >= 1 && card <= kCards : card == 0;
  };
  return std::all_of(s.nomi.begin(), s.nomi.end(), is_storable_name) &&
         std::all_of(s.mazzo.begin() + 1, s.mazzo.end(), is_card) && s.velocita >= 1 &&
         s.velocita <= 3 && s.fruscio_opz <= 1 && s.brano <= 101 && s.scala_carte >= 0.25F &&
         s.scala_carte <= 2 && s.cartaro <= kSeats && (s.cartaro != 0) == s.mano_salvata &&
         s.di_turno == next_seat(s.cartaro);
}

std::string written_again(const std::string& file) {
  State s;
  MemoryArchive archive;
  archive.files[kFile] = file;
  Settings settings(s, archive);
  settings.Set_Read();
  must(is_sound(s), "the settings aren't sound");
  settings.Set_Write();
  return archive.files[kFile];
}

}  // namespace
}  // namespace tombrello

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tombrello;
  const std::string written = written_again(bytes_of(data, size));
  must(std::count(written.begin(), written.end(), '\n') == 113, "not 113 lines");
  must(written_again(written) == written, "what was written doesn't read back");
  return 0;
}
