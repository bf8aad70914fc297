#include "match/match.h"

namespace tombrello {

void Match::Main() {
  s_.phase = Phase::felt;
  s_.ritardo_base = 0.5F;
  out_.shell.enable_names(true);
  out_.shell.enable_continue(false);
  if (!out_.shell.replay_checked()) prepare_match();
  for (;;) {
    start_hand();
    while (!play_turn()) pass_turn();
    end_hand();
    wait_for_continue();
    next_hand();
  }
}

void Match::prepare_match() {
  s_.numero_mano = 1;
  s_.punti_mano = {};
  s_.punti_totali = {};
  out_.table.clear();
  s_.phase = Phase::draw;
  deck_.Mescola();
  draw_.Scelta_Cartaro();
  out_.shell.enable_replay(false);
}

void Match::start_hand() {
  out_.wait.ritardo(0.01F);
  out_.shell.deal_begins();
  Gioco_Imposta();
  s_.phase = Phase::deal;
  deck_.daicarte();
  s_.phase = Phase::hand;
}

void Match::Gioco_Imposta() {
  s_.calate = {};
  s_.mano = {};
  s_.valori_estratti = {};
  s_.pozzo = {};
  s_.mazzo_tmp = {};
  s_.n_calate = {};
  s_.n_mano = {0, kHandCards, kHandCards, kHandCards, kHandCards};
  for (auto& presenze : s_.presenze) presenze.clear();
  s_.squadre[0] = s_.nomi[0] + "-" + s_.nomi[2];
  s_.squadre[1] = s_.nomi[1] + "-" + s_.nomi[3];
  out_.table.clear();
  if (!out_.shell.replay_checked()) deck_.Mescola();
}

bool Match::play_turn() {
  out_.table.Posiziona_Players();
  if (s_.di_turno == 1) {
    person_.Gioco1();
  } else {
    computer_.Gioco2();
  }
  return s_.n_mano[s_.di_turno] == 0;
}

void Match::pass_turn() {
  s_.di_turno = static_cast<std::uint8_t>(next_seat(s_.di_turno));
}

void Match::end_hand() {
  out_.table.scopro_carte();
  s_.phase = Phase::open_hands;
  out_.events.went_out(s_.di_turno);
  out_.wait.ritardo(0.3F);
  scoring_.risultato();
  s_.phase = is_over() ? Phase::match_over : Phase::count;
  out_.shell.enable_continue(!is_over());
}

bool Match::is_over() const {
  return s_.punti_totali[1] >= kWinningTotal || s_.punti_totali[2] >= kWinningTotal;
}

void Match::wait_for_continue() {
  out_.table.default_pointer();
  s_.continua = false;
  while (!s_.continua) out_.wait.serve_events();
}

// A replayed hand is the only one of its run that isn't shuffled.
void Match::next_hand() {
  s_.phase = Phase::felt;
  out_.shell.deal_begins();
  out_.shell.enable_continue(false);
  if (out_.shell.replay_checked()) {
    out_.shell.uncheck_replay();
    out_.shell.enable_replay(false);
  }
  ++s_.numero_mano;
  s_.cartaro = static_cast<std::uint8_t>(next_seat(s_.cartaro));
  s_.di_turno = static_cast<std::uint8_t>(next_seat(s_.cartaro));
  out_.table.clear();
}

}  // namespace tombrello
