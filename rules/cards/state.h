#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string>

#include "cards/card.h"
#include "cards/slice.h"

namespace tombrello {

/// Seats 1..4 in turn order: 1 the person (bottom), 2 left, 3 top, 4 right. Seats 1 and 3 are
/// team 1, seats 2 and 4 team 2. Arrays by seat and by slot count from 1.
inline constexpr int kSeats = 4;
inline constexpr int kHandSlots = 14;      ///< slots 1..14 of a hand
inline constexpr int kHandCards = 13;      ///< dealt to each seat
inline constexpr int kListPositions = 30;  ///< positions 1..30 of a list of melds
inline constexpr int kLastRow = 10;        ///< rows 0..10 of `punti_mano`
inline constexpr int kWinningTotal = 1500;

/// The seat that plays next; without a seat, 0, the first.
constexpr int next_seat(int seat) {
  assert(0 <= seat && seat <= kSeats);
  return seat == kSeats ? 1 : seat + 1;
}
constexpr int partner_of(int seat) {
  assert(1 <= seat && seat <= kSeats);
  return seat > 2 ? seat - 2 : seat + 2;
}

/// Which suit-ranks a hand holds: a string of 52 marks, one for each card of the first pack in
/// the order of their codes, kept as bits. It doesn't count: both copies of a card give one mark.
class PresenceString {
 public:
  void clear() { marks_ = 0; }
  void mark(int card) { marks_ |= bit(first_pack_twin(card)); }
  bool holds(int first_pack_code) const { return (marks_ & bit(first_pack_code)) != 0; }
  /// The ranks held of a suit 1..4.
  Slice slice(int suit) const {
    assert(1 <= suit && suit <= kSuits);
    return Slice(static_cast<unsigned>(marks_ >> ((suit - 1) * kRanks)) & kAllRanks);
  }
  bool operator==(const PresenceString&) const = default;

 private:
  static constexpr std::uint64_t bit(int code) {
    assert(1 <= code && code <= kPack);
    return std::uint64_t{1} << (code - 1);
  }

  std::uint64_t marks_ = 0;
};

/// What stands on the table. The match sets it; nobody infers it.
enum class Phase : std::uint8_t {
  opening,     ///< the opening picture
  felt,        ///< nothing, on the way from one screen to the next
  draw,        ///< the draw for dealer
  deal,        ///< cards are being dealt
  hand,        ///< a hand is played
  open_hands,  ///< somebody has gone out; the cards left lie open
  count,       ///< the scoreboard, until "Continua"
  match_over,  ///< the scoreboard, for good
};

template <class Row>
using BySeat = std::array<Row, kSeats + 1>;

/// All that the seats, the table and the shell share, in fixed arrays, allocated once.
/// No procedure takes a hand, a pile or a meld; each acts on this state by name.
struct State {
  // Deck, stock and pile
  std::array<std::int16_t, kCards + 1> mazzo{};      ///< 1..52 dealt, 53 turned up, 54.. the stock
  std::array<std::int16_t, kCards + 1> mazzo_tmp{};  ///< source of a shuffle; 0 is taken
  std::int16_t tallone = 0;  ///< slot 54..104 of the next stock card; stays at 104 after it
  bool stock_empty = false;  ///< the last stock card has been taken
  std::array<std::int16_t, kPack> pozzo{};  ///< the pile, bottom first
  std::int16_t n_pozzo = 0;                 ///< 0..52

  // Hands and table
  BySeat<std::array<std::int16_t, kHandSlots + 1>> mano{};
  BySeat<std::uint8_t> n_mano{};
  BySeat<std::array<std::int16_t, kListPositions + 1>> calate{};  ///< melds, each closed by 1000
  BySeat<std::uint8_t> n_calate{};                                ///< 0..30, sentinels included

  Phase phase = Phase::opening;

  // Turn and players
  std::uint8_t cartaro = 0;   ///< dealer 1..4; 0 without a deal, and for a tie of the draw
  std::uint8_t di_turno = 0;  ///< seat on turn
  std::uint8_t compagno = 0;  ///< partner of the computer seat on turn
  bool ha_pescato = false;    ///< the seat on turn has drawn
  bool holds_copy = false;    ///< the last card of the hand on turn is a copy of the pile's top
  std::uint8_t azione = 0;    ///< code posted by the pointer handler, 0 none
  bool calata_ok = false;     ///< what the judge of melds said last
  std::array<std::string, kSeats> nomi;  ///< of seat s at s - 1, UTF-8
  std::array<std::string, 2> squadre;    ///< "name-name" of team t at t - 1

  // Selection by the person
  std::int16_t n_selezionate = 0;
  std::array<std::uint8_t, kHandSlots + 1> slot_selezionati{};  ///< 1..`n_selezionate`, rising
  std::uint8_t slot_cliccato = 0;                               ///< 1..`n_mano` of seat 1
  float x_click = 0;             ///< of the press that posted `azione`, logical units
  std::int16_t pos_attacco = 0;  ///< position of the last card of the meld that is added to

  // What computer seats reason with
  BySeat<PresenceString> presenze;
  PresenceString presenze_salvate;                      ///< of the seat on turn, as its turn began
  std::array<std::uint8_t, 3> candidate{};              ///< 1 top of the pile, 2 next stock card
  std::uint8_t scelta_pesca = 0;                        ///< candidate that made a meld, 0 none
  std::array<std::int16_t, kRanks + 1> carte_calata{};  ///< the new meld, first-pack codes
  int lunghezza_calata = 0;                             ///< 3..13, 0 without a meld

  // Match
  std::int16_t numero_mano = 0;  ///< 0 only for a replayed first hand
  std::array<std::array<std::int16_t, 3>, kLastRow + 1> punti_mano{};  ///< [hand][team]
  std::array<std::int16_t, 3> punti_totali{};
  std::array<std::uint8_t, kRanks + 1> punti_carta{};  ///< by rank
  bool continua = false;                               ///< the scoreboard may go
  bool mano_salvata = false;                           ///< the settings file held a whole deal

  // Draw for dealer
  BySeat<std::uint8_t> valori_estratti{};  ///< ranks
  std::int16_t indice_estrazione = 0;      ///< slot of `mazzo` on top, 1..103
  std::uint8_t carta_scelta = 0;           ///< also the card that is being added to a meld
  BySeat<float> x_estrazione{};            ///< where a seat's card lands, logical units
  BySeat<float> y_estrazione{};

  // Options and pacing
  std::uint8_t velocita = 0;  ///< 1..3, the entry checked at load
  float ritardo_base = 0;     ///< 0.5, 1 or 1.5; greater is quicker
  bool timer_scaduto = false;
  std::uint8_t brano = 0;        ///< 0 no music, 1.. a tune, 101 all in sequence
  std::uint8_t fruscio_opz = 0;  ///< 0 silent, 1 sounds on
  bool click_avvio = false;      ///< the opening picture may go
  float scala_carte = 1;         ///< 0.25..2, size of the cards
};

/// The action codes of `azione`.
enum Azione : std::uint8_t {
  kNoAction = 0,
  kDrawPile = 1,
  kDrawStock = 2,
  kSelect = 3,
  kLayOwnSide = 4,
  kLayPartnerSide = 5,
  kDiscard = 6,
  kDealerDraw = 7,
  kNamesConfirmed = 8,
};

}  // namespace tombrello
