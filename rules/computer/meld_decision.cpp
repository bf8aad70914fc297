#include "computer/computer.h"

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

void Computer::decido_calata(int seat) {
  s_.candidate[1] = static_cast<std::uint8_t>(deck_.top_of_pile());
  s_.candidate[2] = static_cast<std::uint8_t>(s_.mazzo[s_.tallone]);
  s_.lunghezza_calata = 0;
  s_.carte_calata.fill(0);
  const bool laid =
      lay_scala(seat, 1) || lay_scala(seat, 2) || lay_same_rank(seat, 1) || lay_same_rank(seat, 2);
  if (laid) {
    close_meld(seat);
  } else {
    s_.presenze[seat] = s_.presenze_salvate;
    s_.scelta_pesca = 0;
    s_.lunghezza_calata = 0;
  }
}

void Computer::try_candidate(int seat, int candidate) {
  s_.presenze[seat] = s_.presenze_salvate;
  s_.presenze[seat].mark(s_.candidate[static_cast<std::size_t>(candidate)]);
}

// The first suit that has a run of three or more, not the longest run of all.
bool Computer::lay_scala(int seat, int candidate) {
  try_candidate(seat, candidate);
  for (int suit = 1; suit <= kSuits; ++suit) {
    const Run run = longest_run(slice(seat, suit));
    if (run.length < kSmallestMeld) continue;
    if (!has_room(seat, run.length)) return false;
    s_.lunghezza_calata = run.length;
    s_.scelta_pesca = static_cast<std::uint8_t>(candidate);
    pesco_carta(seat, candidate);
    for (int k = 1; k <= run.length; ++k) {
      s_.carte_calata[k] = static_cast<std::int16_t>((suit - 1) * kRanks + run.rank + k - 1);
    }
    return true;
  }
  return false;
}

// The lowest rank that three suits or more have, with all the suits that have it.
bool Computer::lay_same_rank(int seat, int candidate) {
  try_candidate(seat, candidate);
  const unsigned h = slice(seat, 1).bits();
  const unsigned d = slice(seat, 2).bits();
  const unsigned c = slice(seat, 3).bits();
  const unsigned s = slice(seat, 4).bits();
  const Slice in_three_suits((h & d & (c | s)) | (c & s & (h | d)));
  if (in_three_suits.empty()) return false;
  const int rank = in_three_suits.lowest();
  s_.lunghezza_calata = 0;
  for (int position = rank; position <= kPack; position += kRanks) {
    if (!s_.presenze[seat].holds(position)) continue;
    s_.carte_calata[++s_.lunghezza_calata] = static_cast<std::int16_t>(position);
  }
  if (!has_room(seat, s_.lunghezza_calata)) return false;
  s_.scelta_pesca = static_cast<std::uint8_t>(candidate);
  pesco_carta(seat, candidate);
  return true;
}

bool Computer::has_room(int seat, int cards) const {
  return s_.n_calate[seat] + cards + 1 <= kListPositions;
}

// A meld stands on the table in first-pack codes, whatever the pack of its cards.
void Computer::close_meld(int seat) {
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

void Computer::take_meld_from_hand(int seat) {
  for (int k = 1; k <= s_.lunghezza_calata; ++k) {
    s_.mano[seat][first_slot_with(seat, s_.carte_calata[k])] = 0;
  }
}

}  // namespace tombrello
