#include "told/card_names.h"

#include <array>

#include "cards/card.h"

namespace tombrello {
namespace {

const std::array<std::string, kSuits + 1> kSigns = {"", "♥", "♦", "♣", "♠"};
const std::array<std::string, kSuits + 1> kSuitNames = {"", "cuori", "quadri", "fiori", "picche"};
const std::array<std::string, kRanks + 1> kRankNames = {
    "",      "Asso", "Due",  "Tre",   "Quattro", "Cinque", "Sei",
    "Sette", "Otto", "Nove", "Dieci", "Fante",   "Donna",  "Re"};

const std::string& suit_name(int card) {
  return kSuitNames[static_cast<std::size_t>(Seme(card))];
}

std::string rank_sign(int rank) {
  if (rank == 1) return "A";
  if (rank == 11) return "J";
  if (rank == 12) return "Q";
  return rank == 13 ? "K" : std::to_string(rank);
}

// "9" and "Re": figures read best as numbers within a sentence.
std::string rank_word(int rank) {
  const bool figure = rank > 1 && rank <= 10;
  return figure ? std::to_string(rank) : kRankNames[static_cast<std::size_t>(rank)];
}

// "dal 6", "dall'Asso", "dalla Donna"; the same endings serve "a".
std::string with_article(const std::string& preposition, int rank) {
  const std::string word = rank_word(rank);
  if (rank == 1 || rank == 8) return preposition + "ll'" + word;
  return preposition + (rank == 12 ? "lla " : "l ") + word;
}

}  // namespace

std::string short_name(int card) {
  return rank_sign(ValCarta(card)) + kSigns[static_cast<std::size_t>(Seme(card))];
}

std::string long_name(int card) {
  return kRankNames[static_cast<std::size_t>(ValCarta(card))] + " di " + suit_name(card);
}

std::string short_names(Cards cards) {
  std::string names;
  for (const int card : cards) {
    if (!names.empty()) names += ' ';
    names += short_name(card);
  }
  return names;
}

std::string meld_name(Cards meld) {
  const int first = meld.front();
  const int last = meld.back();
  const bool scala = Seme(last) == Seme(meld[meld.size() - 2]);
  if (!scala) return (meld.size() == 4 ? "Poker di " : "Tris di ") + rank_word(ValCarta(last));
  return "Scala di " + suit_name(last) + " " + with_article("da", ValCarta(first)) + " " +
         with_article("a", ValCarta(last));
}

}  // namespace tombrello
