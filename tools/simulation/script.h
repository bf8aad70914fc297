#pragma once

#include <memory>
#include <random>
#include <vector>

#include "cards/geometry.h"
#include "cards/state.h"

namespace tombrello {

/// Plays seat 1 by posting action codes, as a pointer would: one code whenever it is asked.
class Script {
 public:
  virtual ~Script() = default;
  virtual void act(State& state, const Geometry& geometry) = 0;
};

/// Slots of cards of a hand that make a meld: a run of three or more, or three or four of a rank;
/// none if there is none.
std::vector<int> find_meld(const std::vector<int>& hand);

enum class ScriptKind {
  simple,  ///< draws from the stock, lays nothing, discards what it drew
  melder,  ///< lays every meld of its hand, adds what fits, discards at random
  wild,    ///< posts codes at random, sensible or not
};

std::unique_ptr<Script> make_script(ScriptKind kind, std::uint64_t seed);

}  // namespace tombrello
