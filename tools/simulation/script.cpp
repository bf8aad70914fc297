#include "tools/simulation/script.h"

#include <algorithm>
#include <deque>
#include <vector>

namespace tombrello {
namespace {

void post(State& s, Azione code, float x = 0) {
  s.x_click = x;
  s.azione = code;
}

class Dice {
 public:
  explicit Dice(std::uint64_t seed) : engine_(seed) {}
  /// 0..n-1, the same on every machine.
  int below(int n) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(n)); }

 private:
  std::mt19937_64 engine_;
};

class SimpleScript : public Script {
 public:
  void act(State& s, const Geometry& g) override {
    if (!s.ha_pescato) {
      post(s, kDrawStock);
    } else {
      post(s, kDiscard, g.x_of_slot(s.n_mano[1]));
    }
  }
};

class MelderScript : public Script {
 public:
  explicit MelderScript(std::uint64_t seed) : dice_(seed) {}

  void act(State& s, const Geometry& g) override {
    if (!s.ha_pescato) {
      plan_.clear();
      additions_left_ = 6;
      post(s, dice_.below(3) == 0 ? kDrawPile : kDrawStock);
      return;
    }
    if (plan_.empty()) make_plan(s, g);
    const auto [code, x] = plan_.front();
    plan_.pop_front();
    post(s, code, x);
  }

 private:
  struct Step {
    Azione code;
    float x;
  };

  void make_plan(const State& s, const Geometry& g) {
    const auto meld = find_meld({s.mano[1].begin() + 1, s.mano[1].begin() + 1 + s.n_mano[1]});
    const Azione side = dice_.below(4) == 0 ? kLayPartnerSide : kLayOwnSide;
    if (!meld.empty() && additions_left_-- > 0) {
      for (const int k : meld) plan_.push_back({kSelect, g.x_of_slot(k)});
      plan_.push_back({side, g.striscia_x() + 1});
    } else if (s.n_mano[1] > 1 && additions_left_-- > 0) {
      plan_.push_back({kSelect, g.x_of_slot(1 + dice_.below(s.n_mano[1]))});
      plan_.push_back({side, g.striscia_x() + static_cast<float>(dice_.below(400))});
    } else {
      plan_.push_back({kDiscard, g.x_of_slot(1 + dice_.below(s.n_mano[1]))});
    }
  }

  Dice dice_;
  std::deque<Step> plan_;
  int additions_left_ = 0;
};

class WildScript : public Script {
 public:
  explicit WildScript(std::uint64_t seed) : dice_(seed) {}

  void act(State& s, const Geometry& g) override {
    constexpr Azione kCodes[] = {kDrawPile,   kDrawStock,     kSelect,         kSelect,
                                 kSelect,     kLayOwnSide,    kLayPartnerSide, kDiscard,
                                 kDealerDraw, kNamesConfirmed};
    const Azione code = kCodes[dice_.below(10)];
    // As the pointer does, it selects only after the draw, and never the last card.
    if (code == kSelect && (!s.ha_pescato || s.n_mano[1] == 1)) return;
    const bool on_fan = code == kSelect || code == kDiscard;
    post(s, code,
         on_fan ? g.x_of_slot(1 + dice_.below(s.n_mano[1]))
                : g.striscia_x() - 20 + static_cast<float>(dice_.below(500)));
  }

 private:
  Dice dice_;
};

}  // namespace

std::vector<int> find_meld(const std::vector<int>& hand) {
  std::array<int, kPack + 1> slot{};  // by first-pack code
  for (std::size_t k = 0; k < hand.size(); ++k) {
    slot[first_pack_twin(hand[k])] = static_cast<int>(k) + 1;
  }
  for (int suit = 0; suit < kSuits; ++suit) {
    std::vector<int> run;
    for (int step = 0; step <= kRanks; ++step) {  // a run may pass from the King to the Ace
      const int code = suit * kRanks + step % kRanks + 1;
      const bool held = slot[code] != 0 && step < kRanks + (run.size() < kRanks ? 1 : 0);
      if (held) run.push_back(slot[code]);
      if ((!held || step == kRanks) && run.size() >= 3) return run;
      if (!held) run.clear();
    }
  }
  for (int rank = 1; rank <= kRanks; ++rank) {
    std::vector<int> same;
    for (int suit = 0; suit < kSuits; ++suit) {
      if (slot[suit * kRanks + rank] != 0) same.push_back(slot[suit * kRanks + rank]);
    }
    if (same.size() >= 3) return same;
  }
  return {};
}

std::unique_ptr<Script> make_script(ScriptKind kind, std::uint64_t seed) {
  switch (kind) {
    case ScriptKind::simple:
      return std::make_unique<SimpleScript>();
    case ScriptKind::melder:
      return std::make_unique<MelderScript>(seed);
    default:
      return std::make_unique<WildScript>(seed);
  }
}

}  // namespace tombrello
