#include "match/dealer_draw.h"

#include <utility>

namespace tombrello {

void DealerDraw::Scelta_Cartaro() {
  find_places();
  lay_out_screen();
  draw_all_seats();
  ord_massimo();
  while (s_.cartaro == 0) {
    announce_tie();
    draw_all_seats();
    ord_massimo();
  }
  s_.azione = kNoAction;
  s_.di_turno = s_.cartaro;
  out_.table.Posiziona_Players();
  s_.di_turno = static_cast<std::uint8_t>(next_seat(s_.cartaro));
  out_.wait.ritardo(0.1F);
}

void DealerDraw::find_places() {
  for (int seat = 1; seat <= kSeats; ++seat) {
    const Place place = g_.drawn_for_dealer(seat);
    s_.x_estrazione[seat] = place.left;
    s_.y_estrazione[seat] = place.top;
  }
}

void DealerDraw::lay_out_screen() {
  s_.azione = kDealerDraw;
  out_.table.default_pointer();
  out_.table.dealer_screen();
  out_.shell.enable_continue(false);
  out_.shell.enable_names(true);
  s_.indice_estrazione = 1;
  out_.sound.Apri_suono("carta");
}

// One card for each of the seats 2, 3, 4 and 1. New names start the screen and the count over,
// which can only happen before the first card.
void DealerDraw::draw_all_seats() {
  s_.di_turno = 2;
  for (;;) {
    if (!wait_for_card()) {
      lay_out_screen();
      s_.di_turno = 2;
      continue;
    }
    draw_card();
    if (s_.di_turno == 1) return;
    s_.di_turno = static_cast<std::uint8_t>(next_seat(s_.di_turno));
    ++s_.indice_estrazione;
  }
}

// Answers false when the names were confirmed instead.
bool DealerDraw::wait_for_card() {
  out_.table.dealer_deck(back_number(s_.mazzo[s_.indice_estrazione]));
  s_.carta_scelta = 0;
  while (s_.carta_scelta == 0) {
    out_.wait.serve_events();
    if (s_.azione == kNamesConfirmed) return false;
  }
  return true;
}

void DealerDraw::draw_card() {
  out_.shell.enable_names(false);
  out_.shell.dealer_card_turned();
  out_.sound.suona();
  out_.table.dealer_card(s_.di_turno, s_.carta_scelta);
  out_.events.turned_for_dealer(s_.di_turno, s_.carta_scelta);
  s_.valori_estratti[s_.di_turno] = static_cast<std::uint8_t>(ValCarta(s_.carta_scelta));
}

void DealerDraw::announce_tie() {
  out_.sound.Apri_suono("Notify");
  out_.sound.suona();
  out_.sound.Apri_suono("carta");
  out_.shell.message("Ripeti, prego");
  // A pass takes three new cards; after 34 passes the deck has no more.
  if (s_.indice_estrazione + 3 <= kCards) return;
  deck_.Mescola();
  s_.indice_estrazione = 1;
}

void DealerDraw::ord_massimo() {
  s_.cartaro = 0;
  BySeat<std::uint8_t> seats{0, 1, 2, 3, 4};
  auto& values = s_.valori_estratti;
  bool swapped = true;
  while (swapped) {
    swapped = false;
    for (int i = 2; i <= kSeats; ++i) {
      if (values[i] >= values[i - 1]) continue;
      std::swap(values[i], values[i - 1]);
      std::swap(seats[i], seats[i - 1]);
      swapped = true;
    }
  }
  if (values[4] != values[3]) s_.cartaro = seats[4];
}

}  // namespace tombrello
