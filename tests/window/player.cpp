#include "player.h"

#include <algorithm>

#include "tools/simulation/script.h"

namespace tombrello {
namespace {

bool all_down(const View& view) {
  const auto hand = view.hand();
  return std::all_of(hand.begin(), hand.end(), [](int card) { return card < kSelected; });
}

bool match_is_over(const View& view) {
  const auto totals = view.numbers("totals");
  return std::max(totals.at(0), totals.at(1)) >= kWinningTotal;
}

}  // namespace

bool hand_is_over(const View& view) {
  return view.number("continue") == 1 || match_is_over(view);
}

void PlayingSession::draw_for_dealer(int cards, Quick quick) {
  start_quick(quick);
  dismiss_opening();
  turn_up(1, cards);
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
  draw_for_dealer(4, quick);
  wait_for("pile", 1);
}

// A press in the pause that ends the deal is lost, so that it may take two.
void PlayingSession::draw() {
  const auto drawn = [](const View& v) { return v.number("drawn") == 1; };
  wait_until("a card drawn", [&](const View&) {
    press(430, 300);
    return comes_true(drawn, Milliseconds(1000));
  });
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

// Whether one was found and accepted.
bool PlayingSession::lay_meld() {
  const auto meld = find_meld(view.hand());
  if (meld.empty()) return false;
  const auto before = view.text("melds1");
  select(meld);
  press(300, 440);
  wait_until("cards to be laid or to drop", all_down);
  return view.text("melds1") != before;
}

void PlayingSession::play_until(const Condition& there, bool sensibly) {
  const auto own_turn = [&](const View& v) {
    return there(v) || (v.number("seat") == 1 && v.number("drawn") == 0 && v.number("pile") > 0);
  };
  for (wait_until("seat 1's turn", own_turn); !there(view); wait_until("a turn", own_turn)) {
    draw();
    while (sensibly && lay_meld()) continue;
    if (const auto hand = view.hand(); !hand.empty()) {
      press_slot(sensibly ? 1 : static_cast<int>(hand.size()), 1);
    }
    wait_until("the discard", [&](const View& v) {
      return there(v) || v.number("seat") != 1 || v.hand().empty();
    });
  }
}

void PlayingSession::play_match_by_keys() {
  for (int strokes = 0; strokes < 3000 && !match_is_over(view); ++strokes) {
    keys({"Tab", "Return"});
    comes_true(match_is_over, Milliseconds(30));
  }
  wait_until("the last word", [](const View& v) {
    const std::string told = v.text("chronicle");
    return told.starts_with("Avete vinto") || told.starts_with("La partita va a");
  });
}

}  // namespace tombrello
