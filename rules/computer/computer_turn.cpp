#include "computer/computer.h"

namespace tombrello {
namespace {

constexpr int kTurnOver = 0;
constexpr int kCardsToMeld = 4;  // a seat with fewer tries no new meld

}  // namespace

void Computer::Gioco2() {
  out_.table.hourglass();
  s_.compagno = static_cast<std::uint8_t>(partner_of(s_.di_turno));
  out_.wait.ritardo(0.1F);
  s_.scelta_pesca = 0;
  s_.ha_pescato = false;
  s_.presenze_salvate = s_.presenze[s_.di_turno];
  for (int step = first_step(); step != kTurnOver;) {
    hands_.riduco_carte(s_.di_turno);
    hands_.rebuild_presenze(s_.di_turno);
    step = run_step(step);
  }
}

int Computer::first_step() {
  const int seat = s_.di_turno;
  if (s_.n_mano[seat] >= kCardsToMeld) decido_calata(seat);
  if (s_.scelta_pesca == 0) return 1;
  s_.ha_pescato = true;
  out_.table.ridisegno_dorsi(seat);
  out_.table.calo_carte(seat);
  return 2;
}

int Computer::run_step(int step) {
  const int seat = s_.di_turno;
  switch (step) {
    case 1:
      try_top_of_pile(seat);
      out_.wait.ritardo(0.2F);
      return 2;
    case 2:
      Provo_Attacco(seat, seat);
      out_.wait.ritardo(0.2F);
      return 3;
    case 3:
      Provo_Attacco(seat, s_.compagno);
      out_.wait.ritardo(0.2F);
      return 4;
    case 4:
      return discard_if_drawn();
    case 5:
      draw_instead(seat);
      return 6;
    case 6:
      out_.table.ridisegno_dorsi(seat);
      scarto_carta(seat);
      return 7;
    default:
      out_.table.ridisegno_dorsi(seat);
      out_.wait.ritardo(0.2F);
      deck_.reshuffle_when_full();
      return kTurnOver;
  }
}

// A copy of the pile's top card joins the hand; a lay-off that uses it takes the pile.
void Computer::try_top_of_pile(int seat) {
  s_.ha_pescato = false;
  ++s_.n_mano[seat];
  s_.mano[seat][s_.n_mano[seat]] = static_cast<std::int16_t>(deck_.top_of_pile());
  s_.holds_copy = true;
}

// The copy is dropped, and the turn's draw comes from the stock.
void Computer::draw_instead(int seat) {
  --s_.n_mano[seat];
  s_.holds_copy = false;
  pesco_carta(seat, 2);
  s_.ha_pescato = true;
}

int Computer::discard_if_drawn() {
  if (!s_.ha_pescato) return 5;
  if (s_.n_mano[s_.di_turno] != 0) scarto_carta(s_.di_turno);
  return 7;
}

void Computer::pesco_carta(int seat, int source) {
  if (source == 1) {
    deck_.take_from_pile(seat);
  } else {
    deck_.take_from_stock(seat);
  }
}

Slice Computer::slice(int seat, int suit) const {
  return Slice::read(s_.presenze[seat].slice(suit - 1));
}

int Computer::first_slot_with(int seat, int code) const {
  const auto& mano = s_.mano[seat];
  int k = 1;
  while (first_pack_twin(mano[k]) != code) ++k;
  return k;
}

}  // namespace tombrello
