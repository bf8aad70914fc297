#include "told/refusals.h"

#include <algorithm>
#include <array>
#include <vector>

#include "cards/card.h"
#include "told/card_names.h"

namespace tombrello {
namespace {

const std::string kNoMoreHere =
    "La combinazione è buona, ma una già calata qui non ne ammette altre";
const std::string kNotInARow = "Non è una scala: le carte non sono in fila";
const std::string kNothing = "Non è né un tris, né un poker, né una scala";

/// How many of the cards share what most of them share, and one that doesn't.
struct Majority {
  int size = 0;
  int odd_one = 0;
};

template <class Trait>
Majority majority(Cards cards, Trait trait) {
  Majority most;
  for (const int model : cards) {
    int same = 0;
    int odd_one = 0;
    for (const int card : cards) {
      if (trait(card) == trait(model)) {
        ++same;
      } else {
        odd_one = card;
      }
    }
    if (same > most.size) most = {same, odd_one};
  }
  return most;
}

/// One of two cards that are alike, or 0.
int card_twice(Cards cards) {
  for (std::size_t i = 0; i < cards.size(); ++i) {
    for (std::size_t j = i + 1; j < cards.size(); ++j) {
      if (first_pack_twin(cards[i]) == first_pack_twin(cards[j])) return cards[i];
    }
  }
  return 0;
}

std::vector<std::int16_t> all_but(Cards cards, int one) {
  std::vector<std::int16_t> rest(cards.begin(), cards.end());
  rest.erase(std::find(rest.begin(), rest.end(), one));
  return rest;
}

// The ranks that a run of these cards of one suit lacks, taken where it lacks fewest: the Ace
// stands between King and 2.
std::vector<int> missing_ranks(Cards cards) {
  std::array<bool, kRanks> held{};
  for (const int card : cards) held[static_cast<std::size_t>(ValCarta(card) - 1)] = true;
  std::vector<int> fewest(kRanks);
  for (int start = 0; start < kRanks; ++start) {
    std::vector<int> missing;
    std::size_t found = 0;
    for (int step = 0; step < kRanks && found < cards.size(); ++step) {
      const int rank = (start + step) % kRanks;
      if (held[static_cast<std::size_t>(rank)]) {
        ++found;
      } else {
        missing.push_back(rank + 1);
      }
    }
    if (held[static_cast<std::size_t>(start)] && missing.size() < fewest.size()) fewest = missing;
  }
  return fewest;
}

// Whatever their suits; no rank is there twice.
bool in_a_row(Cards cards) {
  return missing_ranks(cards).empty();
}

std::string not_of_one_rank(Cards cards, int odd_one) {
  if (cards.size() == 3) return "Quasi un tris: " + short_name(odd_one) + " è di un altro valore";
  return "Quasi un poker: " + short_name(odd_one) +
         (cards.size() == 4 ? " è di un altro valore" : " è di troppo");
}

std::string not_of_one_suit(Cards cards, int odd_one) {
  if (in_a_row(cards)) return "Quasi una scala: " + short_name(odd_one) + " è di un altro seme";
  const std::vector<std::int16_t> rest = all_but(cards, odd_one);
  if (rest.size() >= 3 && in_a_row(rest)) {
    return "Quasi una scala: " + short_name(odd_one) + " è di troppo";
  }
  return kNothing;
}

std::string not_a_scala(Cards cards) {
  if (const int twin = card_twice(cards); twin != 0) {
    const auto rest = all_but(cards, twin);
    if (card_twice(rest) != 0) return "Non è una scala: più di una carta c'è due volte";
    if (rest.size() == kRanks) return kNoMoreHere;  // the circle closed
    return in_a_row(rest) ? "Quasi una scala: " + short_name(twin) + " c'è due volte" : kNotInARow;
  }
  const auto missing = missing_ranks(cards);
  if (missing.empty()) return kNoMoreHere;
  if (missing.size() > 1) return kNotInARow;
  const int lacking = (Seme(cards.front()) - 1) * kRanks + missing.front();
  return "Quasi una scala: manca " + short_name(lacking);
}

std::string not_a_meld(Cards cards) {
  const auto count = static_cast<int>(cards.size());
  const Majority rank = majority(cards, ValCarta);
  const Majority suit = majority(cards, Seme);
  const bool twice = card_twice(cards) != 0;
  if (rank.size == count) {
    return twice ? "Tris e poker vogliono semi diversi: qui un seme c'è due volte" : kNoMoreHere;
  }
  if (suit.size == count) return not_a_scala(cards);
  if (rank.size == count - 1 && !twice) return not_of_one_rank(cards, rank.odd_one);
  if (suit.size == count - 1) return not_of_one_suit(cards, suit.odd_one);
  return kNothing;
}

}  // namespace

std::string sentence_of(Refusal why, Cards cards, Cards meld) {
  switch (why) {
    case Refusal::two_cards:
      return "Due carte da sole non si calano: ne servono almeno tre, o una per attaccarla";
    case Refusal::no_meld_yet:
      return "Qui non c'è ancora niente a cui attaccarla: prima si calano almeno tre carte";
    case Refusal::list_full:
      return "Da questa parte del tavolo non c'è più posto";
    case Refusal::beside_melds:
      return "Per attaccare " + short_name(cards.front()) + " fai clic proprio su una combinazione";
    case Refusal::does_not_fit:
      return short_name(cards.front()) + " non si attacca a " + short_names(meld);
    case Refusal::not_a_meld:
      return not_a_meld(cards);
    default:
      return "Le carte selezionate sono tornate giù: ora un clic scarta";
  }
}

}  // namespace tombrello
