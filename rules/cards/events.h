#pragma once

#include <cstdint>
#include <span>

namespace tombrello {

/// Bare card codes, in the order in which they lie.
using Cards = std::span<const std::int16_t>;

/// Why the cards that the person selected dropped back.
enum class Refusal {
  two_cards,      ///< two are always refused
  no_meld_yet,    ///< one card, and the side has no meld
  list_full,      ///< more than the side's list can hold
  beside_melds,   ///< one card, and the press meant no meld
  does_not_fit,   ///< one card, on the meld that the press meant
  not_a_meld,     ///< three cards or more
  lowered_first,  ///< a discard with cards selected lowers them
};

/// What the player at a real table sees happen, told after it has happened. Nothing comes back.
/// Spans are good for the call alone.
class Events {
 public:
  virtual ~Events() = default;
  virtual void turned_for_dealer(int seat, int card) = 0;
  virtual void hand_dealt() = 0;
  virtual void drew(int seat, int pile_card) = 0;  ///< a bare code, 0 from the stock
  /// A new meld, as it was laid down, on the table area of seat `side`.
  virtual void laid(int seat, int side, Cards cards) = 0;
  virtual void added(int seat, int side, int card) = 0;
  virtual void discarded(int seat, int card) = 0;
  virtual void reshuffled() = 0;
  /// `cards` were selected; `meld` is the one that a single card was refused by, if any.
  virtual void refused(Refusal why, Cards cards, Cards meld) = 0;
  virtual void went_out(int seat) = 0;
  virtual void counted_double(int team) = 0;
};

}  // namespace tombrello
