#pragma once

#include <array>
#include <string>
#include <vector>

#include "cards/events.h"
#include "cards/state.h"
#include "seam/window.h"

namespace tombrello {

/// The line below the table. Left it tells what the player can do now, or why something was
/// refused; right what the others did since the player's own last turn. It tells what a player at
/// a real table sees: never a card drawn from the stock.
class Chronicle : public Events {
 public:
  Chronicle(const State& state, Window& window) : s_(state), window_(window) {}

  /// Shows the line as it stands, for hands on the mouse or on the keys. Called before each wait;
  /// quick when nothing has changed.
  void show(bool by_keys);
  /// A sentence that stands until the game goes on: what the pointer refused, or a trouble of
  /// the program.
  void remark(const std::string& sentence);

  void turned_for_dealer(int seat, int card) override;
  void hand_dealt() override;
  void drew(int seat, int pile_card) override;
  void laid(int seat, int side, Cards cards) override;
  void added(int seat, int side, int card) override;
  void discarded(int seat, int card) override;
  void reshuffled() override;
  void refused(Refusal why, Cards cards, Cards meld) override;
  void went_out(int seat) override;
  void counted_double(int team) override;

 private:
  /// All that the left part depends on, but for the remark.
  using Moment = std::array<int, 7>;
  Moment moment() const;

  void begin_round();
  void tell(int seat, const std::string& deed);
  void tell_all(const std::string& sentence);
  const std::string& name_of(int seat) const;
  std::string now() const;
  std::string dealer() const;
  std::string own_turn() const;
  std::string others_turn(int seat) const;
  std::string count() const;
  std::string then() const;

  const State& s_;
  Window& window_;
  std::string remark_;
  std::vector<std::string> then_;  ///< a sentence for each turn of a seat, or for all
  int telling_ = 0;                ///< the seat that the last sentence is about, 0 for all
  Moment shown_{-1};
  bool changed_ = true;
  bool by_keys_ = false;
  bool has_discarded_ = false;  ///< the player, in this turn
};

}  // namespace tombrello
