#include "player.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "cards/deck.h"
#include "tools/simulation/simulation.h"

namespace tombrello {
namespace {

class NoWait : public Wait {
 public:
  void ritardo(float) override {}
  void serve_events() override {}
};

int dealer_of(const std::vector<int>& draw) {
  constexpr std::array kOrder = {2, 3, 4, 1};
  std::vector<std::pair<int, int>> drawn;
  for (std::size_t i = 0; i < 4; ++i) drawn.emplace_back(ValCarta(draw[i + 1]), kOrder[i]);
  std::sort(drawn.rbegin(), drawn.rend());
  return drawn[0].first == drawn[1].first ? 0 : drawn[0].second;
}

}  // namespace

std::vector<int> Fortune::hand() const {
  const int packet = (1 - next_seat(dealer) + kSeats) % kSeats;
  return {deck.begin() + packet * kHandCards + 1, deck.begin() + (packet + 1) * kHandCards + 1};
}

unsigned long find_clock(const std::function<bool(const Fortune&)>& pleases) {
  for (unsigned long start = 1; start < 200000; ++start) {
    State state;
    CountingClock clock(start);
    Random random(clock);
    QuietTable table;
    NoWait wait;
    QuietSound sound;
    QuietShell shell;
    QuietEvents events;
    Deck deck(state, random, {table, wait, sound, shell, events});
    deck.Mescola();
    Fortune fortune{{state.mazzo.begin(), state.mazzo.end()}, {}, 0};
    deck.Mescola();
    fortune.deck.assign(state.mazzo.begin(), state.mazzo.end());
    fortune.dealer = dealer_of(fortune.draw);
    if (pleases(fortune)) return start;
  }
  throw std::runtime_error("no clock brings that");
}

unsigned long clock_of_short_hand() {
  unsigned long best = 1;
  int fewest = 1000;
  for (unsigned long start = 1; start <= 300; ++start) {
    const HandResult result = Simulation(ScriptKind::simple, start).play_hand(fewest, false);
    if (!result.finished) continue;
    best = start;
    fewest = result.turns;
  }
  return best;
}

unsigned long clock_of_reshuffle() {
  for (int turns = 50;; turns += 5) {
    for (unsigned long start = 1; start <= 300; ++start) {
      const HandResult result = Simulation(ScriptKind::simple, start).play_hand(turns, false);
      if (!result.finished && result.reshuffles > 0) return start;
    }
  }
}

unsigned long clock_of_short_match() {
  unsigned long best = 1;
  int fewest = 1000;
  for (unsigned long start = 1; start <= 3000; ++start) {
    Simulation match(ScriptKind::simple, start);
    int turns = 0;
    for (bool over = false; !over && turns < fewest;) {
      const HandResult hand = match.play_hand(fewest - turns, false);
      turns += hand.turns;
      const auto& totals = match.state().punti_totali;
      over = hand.finished && std::max(totals[1], totals[2]) >= kWinningTotal;
      if (over && turns < fewest) {
        best = start;
        fewest = turns;
      }
    }
  }
  return best;
}

std::vector<int> find_long_run(const std::vector<int>& hand) {
  std::vector<int> run;
  for (int code = 1; code <= kPack + 1; ++code) {
    const auto held = std::find_if(hand.begin(), hand.end(), [&](int card) {
      return card <= kCards && first_pack_twin(card) == code;
    });
    const bool goes_on = held != hand.end() && (run.empty() || ValCarta(code) != 1);
    if (!goes_on && run.size() >= 3) return run;
    if (!goes_on) run.clear();
    if (held != hand.end()) run.push_back(static_cast<int>(held - hand.begin()) + 1);
  }
  return {};
}

std::vector<int> find_meld(const std::vector<int>& hand) {
  if (auto run = find_long_run(hand); !run.empty()) return run;
  for (int rank = 1; rank <= kRanks; ++rank) {
    std::array<int, kSuits + 1> of_suit{};
    for (std::size_t k = 0; k < hand.size(); ++k) {
      const int card = hand[k];
      if (ValCarta(card) == rank)
        of_suit[static_cast<std::size_t>(Seme(card))] = static_cast<int>(k) + 1;
    }
    std::vector<int> same;
    std::copy_if(of_suit.begin(), of_suit.end(), std::back_inserter(same),
                 [](int slot) { return slot != 0; });
    if (same.size() >= 3) return same;
  }
  return {};
}

void PlayingSession::turn_up(int first, int last) {
  for (int card = first; card <= last; ++card) {
    press(400, 300);
    wait_until("card " + std::to_string(card) + " for dealer", [&](const View& v) {
      return v.number("index") > card || v.number("action") != 7 || !v.text("box").empty();
    });
  }
}

void PlayingSession::begin(Quick quick) {
  start_quick(quick);
  dismiss_opening();
  turn_up(1, 4);
  wait_for("pile", 1);
}

bool PlayingSession::hand_is_over() const {
  const auto totals = view.numbers("totals");
  return view.number("continue") == 1 || std::max(totals.at(0), totals.at(1)) >= kWinningTotal;
}

void PlayingSession::wait_for_turn() {
  wait_until(
      "seat 1's turn",
      [&](const View& v) {
        return hand_is_over() || (v.number("seat") == 1 && v.number("drawn") == 0 &&
                                  v.number("pile") + v.number("stock") > 0 && v.has("pile"));
      },
      Milliseconds(60000));
}

// A press in the pause that ends the deal is lost, so that it may take two.
void PlayingSession::draw(float x) {
  for (int tries = 0; tries < 10; ++tries) {
    press(x, 300);
    const auto drawn = [](const View& v) { return v.number("drawn") == 1; };
    if (comes_true(drawn, Milliseconds(800))) return;
  }
  throw std::runtime_error("no card can be drawn");
}

void PlayingSession::press_slot(int slot, int button) {
  press(250 + (static_cast<float>(slot) - 0.5F) * 20, 530, button);
}

void PlayingSession::select(const std::vector<int>& slots) {
  for (const int slot : slots) {
    const auto at = static_cast<std::size_t>(slot - 1);
    press_slot(slot, 3);
    wait_until("card " + std::to_string(slot) + " to rise",
               [&](const View& v) { return v.hand().at(at) > kSelected; });
  }
}

void PlayingSession::lay(float x) {
  press(x, 440);
  wait_until("cards to be laid or to drop", [](const View& v) {
    const auto hand = v.hand();
    return std::all_of(hand.begin(), hand.end(), [](int card) { return card < kSelected; });
  });
}

void PlayingSession::discard(int slot) {
  press_slot(slot, 1);
  wait_until("the discard", [](const View& v) {
    return v.number("seat") != 1 || v.number("continue") == 1 || v.cards(1) == 0;
  });
}

void PlayingSession::play_hand(bool sensibly) {
  for (wait_for_turn(); !hand_is_over(); wait_for_turn()) {
    draw(kStock);
    for (bool accepted = sensibly; accepted && view.cards(1) > 0;) {
      const auto meld = find_meld(view.hand());
      const auto before = view.text("melds1");
      if (meld.empty()) break;
      select(meld);
      lay();
      accepted = view.text("melds1") != before;
    }
    if (view.cards(1) > 0) discard(sensibly ? 1 : view.cards(1));
  }
}

}  // namespace tombrello
