#include <algorithm>

#include "table/painted_table.h"

namespace tombrello {
namespace {

// Places that don't follow the size of a card.
constexpr float kSideBoxTop = 245;
constexpr float kSeat3OpenX = 376.7F;

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

// `tallone` stands at 104 before and after the last card is drawn; only the count of all other
// cards tells. Before its draw a computer seat holds a copy of the pile's top card.
bool is_last_card_taken(const State& s) {
  if (s.tallone != kCards || !s.ha_pescato) return false;
  int cards = s.n_pozzo;
  for (int seat = 1; seat <= kSeats; ++seat) {
    const auto& list = s.calate[seat];
    const auto end = list.begin() + 1 + s.n_calate[seat];
    cards += s.n_mano[seat] + s.n_calate[seat];
    cards -= static_cast<int>(std::count(list.begin() + 1, end, kSentinel));
  }
  return cards == kCards;
}

float steps(int k, float step) {
  return static_cast<float>(k - 1) * step;
}

}  // namespace

void PaintedTable::erase(float x1, float y1, float x2, float y2) {
  surface_.filled_box(x1, y1, x2, y2, kFelt);
}

void PaintedTable::paint_upright(Picture picture, float x, float y) {
  surface_.paint(picture, x, y, m_.larghezza_carta, m_.altezza_carta);
}

void PaintedTable::paint_lying(Picture picture, float x, float y) {
  surface_.paint(picture, x, y, m_.altezza_carta, m_.larghezza_carta);
}

// A half turn: the card ends up left of x and above y.
void PaintedTable::paint_half_turned(Picture picture, float x, float y) {
  surface_.paint(picture, x, y, -m_.altezza_carta, -m_.larghezza_carta);
}

void PaintedTable::ridisegno_carte() {
  erase(m_.ventaglio_x(), m_.riga_alzata(),
        m_.ventaglio_x() + 13 * m_.passo_carta() + m_.larghezza_carta, 2 * m_.mezza_altezza - 20);
  Posiziona_Players();
  for (int k = 1; k <= s_.n_mano[1]; ++k) {
    const int entry = s_.mano[1][k];
    const bool selected = entry > kSelected;
    const float x_disegno = m_.ventaglio_x() + steps(k, m_.passo_carta());
    const float y_disegno = selected ? m_.riga_alzata() : m_.riga_mano();
    paint_upright(face(selected ? entry - kSelected : entry), x_disegno, y_disegno);
  }
}

// The pattern of backs follows the slots of the deck, not the cards in the hand.
void PaintedTable::ridisegno_dorsi(int seat) {
  const float bottom = 17 * m_.passo_carta() + kSideBoxTop;
  switch (seat) {
    case 2:
      erase(0, kSideBoxTop, m_.altezza_carta + 20, bottom);
      break;
    case 3: {
      const Area fan = {m_.ventaglio_x(), 19,
                        m_.ventaglio_x() + 13 * m_.passo_carta() + m_.larghezza_carta,
                        m_.altezza_carta + 20};  // to the cards' very edge
      erase(fan.left, fan.top, fan.right, fan.bottom);
      paint_strip_cards_in(4, fan);  // the box reaches a little into that strip
      break;
    }
    case 4:
      erase(m_.colonna_destra(), kSideBoxTop, 2 * m_.mezza_larghezza - 20, bottom);
      break;
    default:
      return;
  }
  for (int k = 1; k <= s_.n_mano[seat]; ++k) paint_back(seat, k, back_number(s_.mazzo[k]));
}

void PaintedTable::paint_back(int seat, int k, int back) {
  const float along = steps(k, m_.passo_carta());
  if (seat == 2) paint_lying(lying_back(back), 20, m_.ventaglio_y() + along);
  if (seat == 3) paint_upright(upright_back(back), m_.ventaglio_x() + along, 20);
  if (seat == 4) paint_lying(lying_back(back), m_.colonna_destra(), m_.ventaglio_y() + along);
}

void PaintedTable::card_dealt(int seat, int k, int card) {
  if (seat == 1) {
    paint_upright(face(card), m_.ventaglio_x() + steps(k, m_.passo_carta()), m_.riga_mano());
  } else {
    paint_back(seat, k, back_number(card));
  }
}

void PaintedTable::card_drawn(int card) {
  paint_upright(face(card), m_.ventaglio_x() + static_cast<float>(s_.n_mano[1]) * m_.passo_carta(),
                m_.riga_mano());
}

// Seat 3's landing place lies beside the box that a redraw of its backs erases: the back stays.
void PaintedTable::card_landed(int seat, int card) {
  const float fan = 13 * m_.passo_carta();
  const int back = back_number(card);
  if (seat == 2) paint_lying(lying_back(back), 20, fan + kSideBoxTop);
  if (seat == 3) paint_upright(upright_back(back), fan + kSeat3OpenX, 20);
  if (seat == 4) paint_lying(lying_back(back), m_.colonna_destra(), fan + kSideBoxTop);
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
  const float along = steps(k, m_.passo_carta());
  if (seat == 2) {
    const float x = m_.altezza_carta + 20;
    const float y = m_.larghezza_carta + kSideBoxTop + along;
    erase(x, y, x - m_.altezza_carta, y - m_.larghezza_carta);
    paint_half_turned(lying_face(card), x, y);
  } else if (seat == 3) {
    const float x = kSeat3OpenX + along;
    erase(x, 20, x + m_.larghezza_carta, m_.altezza_carta + 20);
    paint_upright(face(card), x, 20);
  } else {
    const float x = m_.colonna_destra();
    const float y = kSideBoxTop + along;
    erase(x, y, x + m_.altezza_carta, y + m_.larghezza_carta);
    paint_lying(lying_face(card), x, y);
  }
}

void PaintedTable::pile_shows(int card) {
  paint_upright(face(card), m_.mezza_larghezza - m_.larghezza_carta, m_.tavolo_y());
}

void PaintedTable::pile_empty() {
  erase(m_.mezza_larghezza - m_.larghezza_carta, m_.tavolo_y(), m_.mezza_larghezza,
        m_.mezza_altezza + m_.altezza_carta / 2);
}

void PaintedTable::stock_shows(int back) {
  paint_upright(upright_back(back), m_.mezza_larghezza, m_.tavolo_y());
}

void PaintedTable::stock_empty() {
  erase(m_.mezza_larghezza, m_.tavolo_y(), m_.mezza_larghezza + m_.larghezza_carta,
        m_.mezza_altezza + m_.altezza_carta / 2);
}

void PaintedTable::dealer_deck(int back) {
  paint_upright(upright_back(back), m_.mezza_larghezza - m_.larghezza_carta / 2, m_.tavolo_y());
}

void PaintedTable::dealer_card(int seat, int card) {
  paint_upright(face(card), s_.x_estrazione[seat], s_.y_estrazione[seat]);
}

void PaintedTable::repaint_hand() {
  clear();
  const bool dealing = s_.pozzo[0] == 0;
  if (dealing) {
    repaint_deal();
    return;
  }
  for (int seat = 2; seat <= kSeats; ++seat) {
    for (int k = 1; k <= s_.n_mano[seat]; ++k) paint_back(seat, k, back_number(s_.mazzo[k]));
  }
  for (int seat = 1; seat <= kSeats; ++seat) paint_strip(seat);
  if (s_.n_pozzo > 0) pile_shows(s_.pozzo[static_cast<std::size_t>(s_.n_pozzo - 1)]);
  if (!is_last_card_taken(s_)) stock_shows(back_number(s_.mazzo[s_.tallone]));
  ridisegno_carte();
  if (s_.n_mano[s_.di_turno] == 0) scopro_carte();
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
