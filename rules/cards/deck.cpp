#include "cards/deck.h"

#include <cassert>

namespace tombrello {
namespace {

constexpr int kFirstUp = 53;     // slot of the first card of the pile
constexpr int kFirstStock = 54;  // slot of the first stock card

}  // namespace

void Deck::Mescola() {
  for (int i = 1; i <= kCards; ++i) s_.mazzo_tmp[i] = static_cast<std::int16_t>(i);
  random_.reset(-1);
  random_.seed_from_clock();
  shuffle_into(1, kCards);
}

// A pick that falls on a taken slot is thrown away and retried, never moved to a neighbour.
void Deck::shuffle_into(int first, int count) {
  for (int i = first; i < first + count;) {
    // Cut before the sum: r * 52 + 53 can round up to 105, a slot too far.
    const int pick = static_cast<int>(random_.next() * count) + first;
    // Written first and counted afterwards: a branch here would be guessed wrong half the time.
    s_.mazzo[i] = s_.mazzo_tmp[pick];
    i += static_cast<int>(s_.mazzo_tmp[pick] != 0);
    s_.mazzo_tmp[pick] = 0;
  }
}

void Deck::daicarte() {
  assert(1 <= s_.cartaro && s_.cartaro <= kSeats);
  out_.table.Posiziona_Players();
  out_.sound.Apri_suono("carta");
  out_.table.stock_shows(0);
  int seat = next_seat(s_.cartaro);
  for (int first = 1; first <= kPack; first += kHandCards) {
    deal_packet(seat, first);
    const bool last = first + kHandCards > kPack;
    if (!last || seat == 4) out_.wait.ritardo(0.1F);
    seat = next_seat(seat);
  }
  out_.shell.Set_Write();
  turn_up_first_card();
  out_.table.pile_shows(s_.pozzo[0]);
  out_.table.stock_shows(back_number(s_.mazzo[kFirstStock]));
  out_.events.hand_dealt();
  out_.wait.ritardo(0.01F);
}

void Deck::deal_packet(int seat, int first) {
  for (int k = 1; k <= kHandCards; ++k) {
    const int slot = first + k - 1;
    out_.wait.ritardo(0.03F);
    show_dealt(seat, k, slot);
    assert(s_.n_mano[seat] == kHandCards);
    s_.mano[seat][k] = s_.mazzo[slot];
    s_.presenze[seat].mark(s_.mazzo[slot]);
  }
}

// The stock always shows the back of the card that comes next.
void Deck::show_dealt(int seat, int k, int slot) {
  if (seat != 1) out_.sound.suona();
  out_.table.card_dealt(seat, k, s_.mazzo[slot]);
  out_.table.stock_shows(back_number(s_.mazzo[slot + 1]));
  if (seat == 1) out_.sound.suona();
}

void Deck::turn_up_first_card() {
  s_.n_pozzo = 1;
  s_.pozzo[0] = s_.mazzo[kFirstUp];
  s_.tallone = kFirstStock;
  s_.stock_empty = false;
}

void Deck::Rimescola() {
  assert(s_.n_pozzo == kPack);
  out_.wait.ritardo(0.1F);
  out_.table.reshuffle_message();
  out_.table.reshuffle_begins();
  out_.wait.ritardo(0.3F);
  for (int i = kFirstUp; i <= kCards; ++i) s_.mazzo_tmp[i] = s_.pozzo[i - kFirstUp];
  random_.reset(-5);
  random_.seed_from_clock();
  shuffle_into(kFirstUp, kPack);
  turn_up_first_card();
  out_.events.reshuffled();
  out_.wait.ritardo(1);
  out_.table.reshuffle_ends();
  out_.table.pile_shows(s_.pozzo[0]);
  out_.table.stock_shows(back_number(s_.mazzo[kFirstStock]));
  out_.wait.ritardo(0.3F);
}

void Deck::take_from_pile(int seat) {
  assert(s_.n_pozzo > 0);
  const int card = top_of_pile();
  add_to_hand(seat, static_cast<std::int16_t>(card));
  --s_.n_pozzo;
  out_.events.drew(seat, card);
  if (s_.n_pozzo == 0) {
    out_.table.pile_empty();
  } else {
    out_.table.pile_shows(top_of_pile());
  }
}

void Deck::take_from_stock(int seat) {
  assert(kFirstStock <= s_.tallone && s_.tallone <= kCards);
  const std::int16_t card = s_.mazzo[s_.tallone];
  add_to_hand(seat, card);
  out_.events.drew(seat, 0);
  if (seat != 1) out_.table.card_landed(seat, card);
  if (s_.tallone == kCards) {  // it stays there: the discard of this turn brings the reshuffle
    s_.stock_empty = true;
    out_.table.stock_empty();
    return;
  }
  ++s_.tallone;
  out_.table.stock_shows(back_number(s_.mazzo[s_.tallone]));
}

void Deck::pesco_carta(int seat, int source) {
  if (source == kFromPile) {
    take_from_pile(seat);
  } else {
    take_from_stock(seat);
  }
}

void Deck::add_to_hand(int seat, std::int16_t card) {
  assert(s_.n_mano[seat] < kHandSlots);
  ++s_.n_mano[seat];
  s_.mano[seat][s_.n_mano[seat]] = card;
}

void Deck::add_to_pile(int card) {
  assert(1 <= card && card <= kCards && s_.n_pozzo < kPack);
  ++s_.n_pozzo;
  s_.pozzo[s_.n_pozzo - 1] = static_cast<std::int16_t>(card);
}

}  // namespace tombrello
