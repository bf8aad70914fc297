#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>

namespace tombrello {

/// Card codes: 1..52 the first pack and 53..104 the second, suit by suit (1 hearts, 2 diamonds,
/// 3 clubs, 4 spades), Ace to King. 0 is an empty slot.
inline constexpr int kCards = 104;
inline constexpr int kPack = 52;
inline constexpr int kRanks = 13;
inline constexpr int kSuits = 4;
inline constexpr int kSelected = 1000;  ///< added to a selected card of seat 1
inline constexpr int kSentinel = 1000;  ///< closes a meld

/// True for a bare card code or an empty slot, which is what the functions below take.
constexpr bool is_bare(int card) {
  return 0 <= card && card <= kCards;
}

/// The card of the first pack with the same face. Also the number of its face picture.
constexpr int first_pack_twin(int card) {
  assert(is_bare(card));
  return card > kPack ? card - kPack : card;
}

/// The number of the picture of a card's back.
constexpr int back_number(int card) {
  assert(is_bare(card));
  return card > kPack ? 1 : 0;
}

/// The card of the first pack of a suit 1..4 and a rank 1..13.
constexpr int card_of(int suit, int rank) {
  assert(1 <= suit && suit <= kSuits && 1 <= rank && rank <= kRanks);
  return (suit - 1) * kRanks + rank;
}

/// Suit and rank of every bare card code, worked out by the compiler.
struct Faces {
  std::array<std::uint8_t, kCards + 1> suit{};
  std::array<std::uint8_t, kCards + 1> rank{};

  constexpr Faces() {
    for (std::size_t card = 1; card <= kCards; ++card) {
      suit[card] = static_cast<std::uint8_t>((card - 1) / kRanks % kSuits + 1);
      rank[card] = static_cast<std::uint8_t>((card - 1) % kRanks + 1);
    }
  }
};
inline constexpr Faces kFaces;

/// Suit 1..4 of a bare card code 0..104; 0 for no card.
constexpr int Seme(int card) {
  assert(is_bare(card));
  return kFaces.suit[static_cast<std::size_t>(card)];
}

/// Rank 1 (Ace) to 13 (King) of a bare card code 0..104; 0 for no card.
constexpr int ValCarta(int card) {
  assert(is_bare(card));
  return kFaces.rank[static_cast<std::size_t>(card)];
}

/// The ranks beside a rank on the circle of ranks, where the Ace follows the King.
constexpr int rank_after(int rank) {
  return rank == kRanks ? 1 : rank + 1;
}
constexpr int rank_before(int rank) {
  return rank == 1 ? kRanks : rank - 1;
}

}  // namespace tombrello
