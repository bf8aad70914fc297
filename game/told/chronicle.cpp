#include "told/chronicle.h"

#include <algorithm>
#include <utility>

#include "match/dead_hand.h"
#include "told/card_names.h"
#include "told/refusals.h"

namespace tombrello {
namespace {

constexpr const char* kBetween = " · ";

int selected_cards(const State& s) {
  const auto& hand = s.mano[1];
  return static_cast<int>(
      std::count_if(hand.begin(), hand.end(), [](int card) { return card > kSelected; }));
}

std::string total(const State& s, int team) {
  return std::to_string(s.punti_totali[static_cast<std::size_t>(team)]);
}

}  // namespace

Chronicle::Moment Chronicle::moment() const {
  return {static_cast<int>(s_.phase),
          s_.di_turno,
          s_.ha_pescato ? 1 : 0,
          s_.n_mano[1],
          s_.numero_mano,
          selected_cards(s_),
          has_discarded_ ? 1 : 0};
}

void Chronicle::show(bool by_keys) {
  const bool reworded = std::exchange(by_keys_, by_keys) != by_keys;
  const Moment now_is = moment();
  if (now_is == shown_ && !changed_ && !reworded) return;
  if (now_is != shown_ && !changed_) remark_.clear();  // it was about the moment before
  shown_ = now_is;
  changed_ = false;
  window_.set_chronicle(remark_.empty() ? now() : remark_, then());
}

void Chronicle::remark(const std::string& sentence) {
  remark_ = sentence;
  changed_ = true;
}

const std::string& Chronicle::name_of(int seat) const {
  return s_.nomi[static_cast<std::size_t>(seat - 1)];
}

std::string Chronicle::now() const {
  switch (s_.phase) {
    case Phase::opening:
      return "Fai clic per cominciare";
    case Phase::draw:
      if (s_.azione != kDealerDraw) return "Il cartaro " + dealer();
      return std::string("Scelta del cartaro: ") +
             (by_keys_ ? "Invio sul mazzo" : "fai clic sul mazzo") + " per la " +
             (s_.di_turno == 1 ? "tua carta" : "carta di " + name_of(s_.di_turno));
    case Phase::deal:
      return s_.cartaro == 1 ? "Dai tu le carte" : name_of(s_.cartaro) + " dà le carte";
    case Phase::hand:
      if (s_.di_turno == 1 && s_.n_mano[1] == 0) return "Hai chiuso la mano";
      if (s_.di_turno == 1 && !has_discarded_) return own_turn();
      return others_turn(has_discarded_ ? next_seat(1) : s_.di_turno);
    case Phase::open_hands:
      return "Mano finita: si contano i punti";
    case Phase::count:
    case Phase::match_over:
      return count();
    default:
      return {};
  }
}

std::string Chronicle::dealer() const {
  return s_.cartaro == 1 ? "sei tu" : "è " + name_of(s_.cartaro);
}

std::string Chronicle::own_turn() const {
  if (!s_.ha_pescato) {
    const std::string draw = "Tocca a te: prendi la carta scoperta (Pozzo) o pesca dal Tallone";
    return nobody_can_go_out(s_) ? draw + " (nessuno può più chiudere)" : draw;
  }
  if (s_.n_mano[1] == 1) {
    return by_keys_ ? "Ultima carta: con Invio la scarti e chiudi"
                    : "Ultima carta: fai clic per scartarla e chiudere";
  }
  const int selected = selected_cards(s_);
  if (selected == 0) {
    return by_keys_ ? "Scarta (Invio) o seleziona le carte da calare (barra spaziatrice)"
                    : "Scarta (clic) o seleziona le carte da calare (tasto destro)";
  }
  if (selected >= 3) {
    return by_keys_
               ? "Cala: Invio nel riquadro sopra la tua mano o davanti al compagno"
               : "Cala: fai clic sopra la tua mano, dove appare la freccia, o davanti al compagno";
  }
  const bool can_add = selected == 1 && s_.n_calate[1] + s_.n_calate[3] > 0;
  const std::string add = by_keys_ ? "Attaccala a una vostra combinazione (Invio)"
                                   : "Attaccala (clic sulla metà bassa di una combinazione)";
  if (s_.n_mano[1] < 3) return can_add ? add : "Per calare servono almeno tre carte";
  if (can_add) return add + " o selezionane altre due";
  return selected == 1 ? "Selezionane almeno altre due per calare"
                       : "Selezionane almeno un'altra per calare";
}

std::string Chronicle::others_turn(int seat) const {
  return "Gioca " + name_of(seat) +
         (by_keys_ ? " (tieni premuta la barra per fare in fretta)" : "");
}

std::string Chronicle::count() const {
  const std::string score =
      s_.squadre[0] + " " + total(s_, 1) + kBetween + s_.squadre[1] + " " + total(s_, 2);
  if (s_.phase == Phase::count) return score + ". Per continuare: Invio, o Partita, Continua";
  if (s_.punti_totali[1] == s_.punti_totali[2]) return "Partita finita in parità: " + score;
  const bool own = s_.punti_totali[1] > s_.punti_totali[2];
  return (own ? "Avete vinto la partita! " : "La partita va a " + s_.squadre[1] + ". ") + score;
}

std::string Chronicle::then() const {
  std::string line;
  for (const std::string& sentence : then_) line += (line.empty() ? "" : kBetween) + sentence;
  return line;
}

void Chronicle::tell(int seat, const std::string& deed) {
  if (seat == 1) return;  // the player knows
  if (telling_ == seat) {
    then_.back() += ", " + deed;
  } else {
    then_.push_back(name_of(seat) + ": " + deed);
  }
  telling_ = seat;
  changed_ = true;
}

void Chronicle::tell_all(const std::string& sentence) {
  then_.push_back(sentence);
  telling_ = 0;
  changed_ = true;
}

void Chronicle::begin_round() {
  then_.clear();
  telling_ = 0;
  changed_ = true;
}

// Seat 2's card is the first, also after a tie.
void Chronicle::turned_for_dealer(int seat, int card) {
  if (seat == 2) begin_round();
  tell_all(name_of(seat) + " " + short_name(card));
}

void Chronicle::hand_dealt() {
  has_discarded_ = false;
  begin_round();
  remark_.clear();
}

void Chronicle::drew(int seat, int pile_card) {
  if (seat != 1) remark_.clear();
  has_discarded_ = false;
  tell(seat, pile_card == 0 ? "Tallone" : "Pozzo");
}

void Chronicle::laid(int seat, int, Cards cards) {
  tell(seat, "cala " + short_names(cards));
}

void Chronicle::added(int seat, int, int card) {
  tell(seat, "attacca " + short_name(card));
}

// With the player's own discard a new round of the others begins.
void Chronicle::discarded(int seat, int card) {
  if (seat == 1) {
    remark_.clear();
    begin_round();
    has_discarded_ = true;
  }
  tell(seat, "scarta " + short_name(card));
}

void Chronicle::reshuffled() {
  tell_all("il Pozzo si rimescola");
}

void Chronicle::refused(Refusal why, Cards cards, Cards meld) {
  remark(sentence_of(why, cards, meld));
}

void Chronicle::went_out(int seat) {
  remark_.clear();
  tell_all(seat == 1 ? "hai chiuso" : name_of(seat) + " chiude");
}

void Chronicle::counted_double(int team) {
  tell_all("punti raddoppiati per " + s_.squadre[static_cast<std::size_t>(team - 1)]);
}

}  // namespace tombrello
