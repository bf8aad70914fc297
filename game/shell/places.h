#pragma once

#include <optional>
#include <vector>

#include "cards/geometry.h"
#include "cards/state.h"
#include "seam/window.h"
#include "shell/pointer.h"

namespace tombrello {

struct PressPoint {
  float x = 0;
  float y = 0;
};

/// A place of the table, with the points at which the pointer's zones give what it is for.
struct Spot {
  TablePlace told;
  int own_card = 0;                  ///< its slot, for a card of seat 1's hand
  bool on_melds = false;             ///< a meld, or where one can be laid
  std::optional<PressPoint> press;   ///< for the left button
  std::optional<PressPoint> select;  ///< for the right button
  bool acts() const { return press || select; }
};

/// The places of the table as they stand, from top to bottom: for the keyboard, and to be read
/// out. What the player can't see isn't among them.
class Places {
 public:
  Places(const State& state, const Geometry& geometry, const Pointer& pointer)
      : s_(state), g_(geometry), pointer_(pointer) {}

  std::vector<Spot> spots() const;

 private:
  using Spots = std::vector<Spot>;

  void add(Spots& spots, const std::string& name, const Place& place) const;
  void add_hand_of(Spots& spots, int seat) const;
  void add_melds_of(Spots& spots, int seat) const;
  void add_pile_and_stock(Spots& spots) const;
  void add_own_hand(Spots& spots) const;
  void add_band(Spots& spots, int side) const;
  void add_scores(Spots& spots) const;
  std::string name_of(int seat) const { return s_.nomi[static_cast<std::size_t>(seat - 1)]; }
  Place hand_of(int seat) const;
  /// Where within a place a press acts on just this place.
  std::optional<PressPoint> point_for(Button button, const Place& place) const;

  const State& s_;
  const Geometry& g_;
  const Pointer& pointer_;
};

}  // namespace tombrello
