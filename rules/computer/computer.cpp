#include "computer/computer.h"

#include <cassert>

namespace tombrello {
namespace {

constexpr int kCardsToMeld = 4;  // a seat with fewer tries no new meld

}  // namespace

void Computer::Gioco2() {
  const int seat = s_.di_turno;
  assert(2 <= seat && seat <= kSeats && s_.n_pozzo > 0 && hands_.presenze_agree(seat));
  out_.table.hourglass();
  s_.compagno = static_cast<std::uint8_t>(partner_of(seat));
  out_.wait.ritardo(0.1F);
  s_.scelta_pesca = 0;
  s_.ha_pescato = false;
  s_.presenze_salvate = s_.presenze[seat];
  for (Step step = first_step(); step != Step::over;) step = run(step);
}

Computer::Step Computer::first_step() {
  const int seat = s_.di_turno;
  if (s_.n_mano[seat] >= kCardsToMeld) meld_.decido_calata(seat);
  if (s_.scelta_pesca == 0) return Step::try_pile;
  s_.ha_pescato = true;
  out_.table.ridisegno_dorsi(seat);
  out_.table.calo_carte(seat);
  hands_.tidy(seat);
  return Step::add_to_own;
}

Computer::Step Computer::run(Step step) {
  const int seat = s_.di_turno;
  switch (step) {
    case Step::try_pile:
      try_top_of_pile(seat);
      out_.wait.ritardo(0.2F);
      return Step::add_to_own;
    case Step::add_to_own:
      lay_off_.Provo_Attacco(seat, seat);
      out_.wait.ritardo(0.2F);
      return Step::add_to_partners;
    case Step::add_to_partners:
      lay_off_.Provo_Attacco(seat, s_.compagno);
      out_.wait.ritardo(0.2F);
      return Step::discard_if_drawn;
    case Step::discard_if_drawn:
      if (!s_.ha_pescato) return Step::draw_instead;
      if (s_.n_mano[seat] != 0) discard(seat);
      return Step::end;
    case Step::draw_instead:
      draw_instead(seat);
      return Step::discard;
    case Step::discard:
      out_.table.ridisegno_dorsi(seat);
      discard(seat);
      return Step::end;
    default:
      end_turn(seat);
      return Step::over;
  }
}

// A lay-off that uses the copy takes the pile.
void Computer::try_top_of_pile(int seat) {
  s_.ha_pescato = false;
  ++s_.n_mano[seat];
  s_.mano[seat][s_.n_mano[seat]] = static_cast<std::int16_t>(deck_.top_of_pile());
  s_.holds_copy = true;
  hands_.tidy(seat);
}

void Computer::draw_instead(int seat) {
  --s_.n_mano[seat];
  s_.holds_copy = false;
  deck_.pesco_carta(seat, kFromStock);
  s_.ha_pescato = true;
  hands_.tidy(seat);
}

void Computer::discard(int seat) {
  discard_.scarto_carta(seat);
  hands_.tidy(seat);
}

void Computer::end_turn(int seat) {
  out_.table.ridisegno_dorsi(seat);
  out_.wait.ritardo(0.2F);
  deck_.reshuffle_when_full();
}

}  // namespace tombrello
