#include "told/refusals.h"

#include <algorithm>
#include <array>
#include <vector>

#include "cards/card.h"
#include "told/card_names.h"

namespace tombrello {
namespace {

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

bool any_twice(Cards cards) {
  for (std::size_t i = 0; i < cards.size(); ++i) {
    for (std::size_t j = i + 1; j < cards.size(); ++j) {
      if (first_pack_twin(cards[i]) == first_pack_twin(cards[j])) return true;
    }
  }
  return false;
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

std::string not_a_scala(Cards cards) {
  const auto missing = missing_ranks(cards);
  if (missing.empty()) {
    return "La combinazione è buona, ma una già calata qui non ne ammette altre";
  }
  if (missing.size() > 1) return "Non è una scala: le carte non sono in fila";
  const int lacking = (Seme(cards.front()) - 1) * kRanks + missing.front();
  return "Quasi una scala: manca " + short_name(lacking);
}

std::string not_a_meld(Cards cards) {
  const auto count = static_cast<int>(cards.size());
  const Majority rank = majority(cards, ValCarta);
  const Majority suit = majority(cards, Seme);
  if (rank.size == count) {
    return any_twice(cards) ? "Tris e poker vogliono semi diversi: qui un seme c'è due volte"
                            : "La combinazione è buona, ma una già calata qui non ne ammette altre";
  }
  if (suit.size == count) {
    return any_twice(cards) ? "Quasi una scala: una carta c'è due volte" : not_a_scala(cards);
  }
  if (suit.size == count - 1 && rank.size < count - 1) {
    return "Quasi una scala: " + short_name(suit.odd_one) + " è di un altro seme";
  }
  if (rank.size == count - 1 && suit.size < count - 1) {
    return std::string(count > 4 ? "Non è un poker: " : "Quasi un tris: ") +
           short_name(rank.odd_one) + " è di un altro valore";
  }
  return "Non è né un tris, né un poker, né una scala";
}

}  // namespace

std::string sentence_of(Refusal why, Cards cards, Cards meld) {
  switch (why) {
    case Refusal::two_cards:
      return "Due carte sole non si calano: tre o più per una combinazione, una per attaccare";
    case Refusal::no_meld_yet:
      return "Qui non c'è ancora niente a cui attaccare: la prima volta si calano almeno tre carte";
    case Refusal::list_full:
      return "Da questa parte del tavolo non c'è più posto";
    case Refusal::beside_melds:
      return "Per attaccare " + short_name(cards.front()) + " fai clic su una combinazione";
    case Refusal::does_not_fit:
      return short_name(cards.front()) + " non si attacca a " + short_names(meld);
    case Refusal::not_a_meld:
      return not_a_meld(cards);
    default:
      return "Le carte selezionate sono tornate giù: ora un clic scarta";
  }
}

}  // namespace tombrello
