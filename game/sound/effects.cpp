#include "sound/effects.h"

namespace tombrello {

// A rustle lying beside the program instead of in its folder is opened until a sound is chosen.
void Effects::prepare() {
  open("carta.wav");
}

void Effects::close() {
  MMCw_.command(MediaControl::Command::close);
}

void Effects::Apri_suono(const std::string& nome) {
  open("sounds/" + nome + ".wav");
}

void Effects::suona() {
  if (fruscio_opz_ == 0) return;
  MMCw_.command(MediaControl::Command::play);
  MMCw_.set_start_option(0);
}

void Effects::open(const std::string& file) {
  MMCw_.set_blocking(true);
  MMCw_.set_opening_option(0);
  MMCw_.command(MediaControl::Command::close);
  MMCw_.set_file_name(file);
  MMCw_.command(MediaControl::Command::open);
}

}  // namespace tombrello
