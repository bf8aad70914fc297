#include "computer/meld_decision.h"

#include "melds/meld_range.h"

namespace tombrello {
namespace {

struct Run {
  int length = 0;
  int rank = 0;  // of its first card
};

// The longest run of ranks, the lowest of equal ones.
Run longest_run(Slice slice) {
  Run run;
  unsigned starts = slice.bits();  // bit r - 1: a run of `length` begins at rank r
  for (int length = 1; starts != 0; ++length) {
    run = {length, Slice(starts).lowest()};
    starts &= slice.bits() >> static_cast<unsigned>(length);
  }
  return run;
}

}  // namespace

void MeldDecision::decido_calata(int seat) {
  s_.candidate[kFromPile] = static_cast<std::uint8_t>(deck_.top_of_pile());
  s_.candidate[kFromStock] = static_cast<std::uint8_t>(s_.mazzo[s_.tallone]);
  s_.lunghezza_calata = 0;
  s_.carte_calata.fill(0);
  const bool laid = lay_scala(seat, kFromPile) || lay_scala(seat, kFromStock) ||
                    lay_same_rank(seat, kFromPile) || lay_same_rank(seat, kFromStock);
  if (laid) {
    close_meld(seat);
  } else {
    s_.presenze[seat] = s_.presenze_salvate;
    s_.scelta_pesca = 0;
    s_.lunghezza_calata = 0;
  }
}

void MeldDecision::try_candidate(int seat, int candidate) {
  s_.presenze[seat] = s_.presenze_salvate;
  s_.presenze[seat].mark(s_.candidate[static_cast<std::size_t>(candidate)]);
}

// The first suit that has a run of three or more, not the longest run of all.
bool MeldDecision::lay_scala(int seat, int candidate) {
  try_candidate(seat, candidate);
  for (int suit = 1; suit <= kSuits; ++suit) {
    const Run run = longest_run(s_.presenze[seat].slice(suit));
    if (run.length < kSmallestMeld) continue;
    if (!has_room(seat, run.length)) return false;
    s_.lunghezza_calata = run.length;
    for (int k = 1; k <= run.length; ++k) {
      s_.carte_calata[k] = static_cast<std::int16_t>(card_of(suit, run.rank + k - 1));
    }
    take_candidate(seat, candidate);
    return true;
  }
  return false;
}

// The lowest rank that three suits or more have, with all the suits that have it.
bool MeldDecision::lay_same_rank(int seat, int candidate) {
  try_candidate(seat, candidate);
  const auto& try_out = s_.presenze[seat];
  const unsigned h = try_out.slice(1).bits();
  const unsigned d = try_out.slice(2).bits();
  const unsigned c = try_out.slice(3).bits();
  const unsigned s = try_out.slice(4).bits();
  const Slice in_three_suits((h & d & (c | s)) | (c & s & (h | d)));
  if (in_three_suits.empty()) return false;
  const int rank = in_three_suits.lowest();
  s_.lunghezza_calata = 0;
  for (int suit = 1; suit <= kSuits; ++suit) {
    if (!try_out.slice(suit).holds(rank)) continue;
    s_.carte_calata[++s_.lunghezza_calata] = static_cast<std::int16_t>(card_of(suit, rank));
  }
  if (!has_room(seat, s_.lunghezza_calata)) return false;
  take_candidate(seat, candidate);
  return true;
}

void MeldDecision::take_candidate(int seat, int candidate) {
  s_.scelta_pesca = static_cast<std::uint8_t>(candidate);
  deck_.pesco_carta(seat, candidate);
}

bool MeldDecision::has_room(int seat, int cards) const {
  return s_.n_calate[seat] + cards + 1 <= kListPositions;
}

// A meld stands on the table in first-pack codes, whatever the pack of its cards.
void MeldDecision::close_meld(int seat) {
  auto& list = s_.calate[seat];
  const int n = s_.n_calate[seat];
  for (int k = 1; k <= s_.lunghezza_calata; ++k) list[n + k] = s_.carte_calata[k];
  const auto length = static_cast<std::size_t>(s_.lunghezza_calata);
  out_.events.laid(seat, seat, Cards(s_.carte_calata).subspan(1, length));
  take_meld_from_hand(seat);
  hands_.riduco_carte(seat);
  s_.n_calate[seat] = static_cast<std::uint8_t>(n + s_.lunghezza_calata + 1);
  list[s_.n_calate[seat]] = kSentinel;
}

void MeldDecision::take_meld_from_hand(int seat) {
  for (int k = 1; k <= s_.lunghezza_calata; ++k) {
    s_.mano[seat][hands_.first_slot_with(seat, s_.carte_calata[k])] = 0;
  }
}

}  // namespace tombrello
