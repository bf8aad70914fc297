#pragma once

#include <cassert>

#include "cards/outside.h"
#include "cards/random.h"
#include "cards/state.h"

namespace tombrello {

/// Where a computer seat draws from, and the number of the candidate that lies there.
inline constexpr int kFromPile = 1;
inline constexpr int kFromStock = 2;

/// Shuffle, deal, stock and pile.
class Deck {
 public:
  Deck(State& state, Random& random, Outside outside) : s_(state), random_(random), out_(outside) {}

  /// Leaves a permutation of 1..104 in `mazzo`.
  void Mescola();
  /// Deals `mazzo`; `cartaro` is 1..4 and every `n_mano` 13.
  void daicarte();
  /// Turns the pile, which holds 52 cards, into a new pile and stock.
  void Rimescola();
  /// Called when a turn is over: the pile holds 52 cards exactly when the stock is empty.
  void reshuffle_when_full() {
    if (s_.n_pozzo == kPack) Rimescola();
  }

  /// Move the top of the pile, or the next stock card, to the next slot of a hand, which has
  /// room for it, and show what pile or stock then hold. There must be such a card.
  void take_from_pile(int seat);
  void take_from_stock(int seat);
  /// The draw of a computer seat, from `kFromPile` or `kFromStock`.
  void pesco_carta(int seat, int source);
  /// A bare card code; shows nothing. The pile holds fewer than 52 cards.
  void add_to_pile(int card);
  /// The pile holds a card.
  int top_of_pile() const {
    assert(s_.n_pozzo > 0);
    return s_.pozzo[static_cast<std::size_t>(s_.n_pozzo - 1)];
  }

 private:
  void shuffle_into(int first, int count);
  void deal_packet(int seat, int first);
  void show_dealt(int seat, int k, int slot);
  void turn_up_first_card();
  void add_to_hand(int seat, std::int16_t card);

  State& s_;
  Random& random_;
  Outside out_;
};

}  // namespace tombrello
