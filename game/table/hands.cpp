#include "table/painted_table.h"

namespace tombrello {
namespace {

Picture face(int card) {
  return {PictureSet::carta, first_pack_twin(card)};
}
Picture lying_face(int card) {
  return {PictureSet::cartao, first_pack_twin(card)};
}
Picture upright_back(int back) {
  return {PictureSet::dorsov, back};
}
Picture lying_back(int back) {
  return {PictureSet::dorsoo, back};
}

}  // namespace

void PaintedTable::erase(const Place& place) {
  surface_.filled_box(place.left, place.top, place.right, place.bottom, kFelt);
}

void PaintedTable::paint_upright(Picture picture, const Place& place) {
  surface_.paint(picture, place.left, place.top, g_.larghezza_carta, g_.altezza_carta);
}

void PaintedTable::paint_lying(Picture picture, const Place& place) {
  surface_.paint(picture, place.left, place.top, g_.altezza_carta, g_.larghezza_carta);
}

void PaintedTable::paint_half_turned(Picture picture, const Place& place) {
  surface_.paint(picture, place.right, place.bottom, -g_.altezza_carta, -g_.larghezza_carta);
}

void PaintedTable::ridisegno_carte() {
  erase(g_.hand_box());
  Posiziona_Players();
  for (int k = 1; k <= s_.n_mano[1]; ++k) {
    const int entry = s_.mano[1][k];
    const bool selected = entry > kSelected;
    paint_upright(face(selected ? entry - kSelected : entry), g_.hand_card(k, selected));
  }
}

// The pattern of backs follows the slots of the deck, not the cards in the hand.
void PaintedTable::ridisegno_dorsi(int seat) {
  if (seat == 1) return;
  erase_under_strips(g_.backs_box(seat));  // seat 3's box reaches a little into seat 4's strip
  paint_backs(seat, s_.n_mano[seat]);
}

void PaintedTable::paint_backs(int seat, int cards) {
  for (int k = 1; k <= cards; ++k) paint_back(seat, k, back_number(s_.mazzo[k]));
}

void PaintedTable::paint_back(int seat, int k, int back) {
  if (seat == 3) {
    paint_upright(upright_back(back), g_.back(seat, k));
  } else {
    paint_lying(lying_back(back), g_.back(seat, k));
  }
}

void PaintedTable::card_dealt(int seat, int k, int card) {
  if (seat == 1) {
    paint_upright(face(card), g_.hand_card(k, false));
  } else {
    paint_back(seat, k, back_number(card));
  }
}

void PaintedTable::card_drawn(int card) {
  paint_upright(face(card), g_.hand_card(s_.n_mano[1] + 1, false));
}

// Seat 3's landing place lies beside the box that a redraw of its backs erases: the back stays.
void PaintedTable::card_landed(int seat, int card) {
  const int back = back_number(card);
  if (seat == 3) {
    paint_upright(upright_back(back), g_.landing(seat));
  } else {
    paint_lying(lying_back(back), g_.landing(seat));
  }
}

void PaintedTable::scopro_carte() {
  for (int seat = 2; seat <= kSeats; ++seat) {
    for (int k = 1; k <= s_.n_mano[seat]; ++k) open_card(seat, k);
  }
}

// The two sides differ here: seat 2's cards lie with their tops to the left, seat 4's to the
// right.
void PaintedTable::open_card(int seat, int k) {
  const int card = s_.mano[seat][k];
  const Place place = g_.open_card(seat, k);
  erase(place);
  if (seat == 2) paint_half_turned(lying_face(card), place);
  if (seat == 3) paint_upright(face(card), place);
  if (seat == 4) paint_lying(lying_face(card), place);
}

void PaintedTable::pile_shows(int card) {
  paint_upright(face(card), g_.pile());
}

void PaintedTable::stock_shows(int back) {
  paint_upright(upright_back(back), g_.stock());
}

void PaintedTable::dealer_deck(int back) {
  paint_upright(upright_back(back), g_.dealer_deck());
}

void PaintedTable::dealer_card(int seat, int card) {
  paint_upright(face(card), g_.drawn_for_dealer(seat));
}

void PaintedTable::repaint() {
  clear();
  if (s_.phase == Phase::deal) return repaint_deal();
  if (s_.phase < Phase::hand) return;
  repaint_hand();
  if (s_.phase >= Phase::open_hands) scopro_carte();
  if (s_.phase < Phase::count) return;
  panel_box(g_.count_panel().left, g_.count_panel().right);
  scoreboard();
}

void PaintedTable::repaint_hand() {
  for (int seat = 2; seat <= kSeats; ++seat) {
    const bool copy = seat == s_.di_turno && s_.holds_copy;
    paint_backs(seat, s_.n_mano[seat] - (copy ? 1 : 0));
  }
  for (int seat = 1; seat <= kSeats; ++seat) paint_strip(seat);
  if (s_.n_pozzo > 0) pile_shows(s_.pozzo[static_cast<std::size_t>(s_.n_pozzo - 1)]);
  if (!s_.stock_empty) stock_shows(back_number(s_.mazzo[s_.tallone]));
  ridisegno_carte();
}

void PaintedTable::repaint_deal() {
  int dealt = 0;
  for (int seat = 1; seat <= kSeats; ++seat) {
    for (int k = 1; k <= kHandCards && s_.mano[seat][k] != 0; ++k) {
      card_dealt(seat, k, s_.mano[seat][k]);
      ++dealt;
    }
  }
  stock_shows(back_number(s_.mazzo[dealt + 1]));
  Posiziona_Players();
}

}  // namespace tombrello
