#include "player.h"

#include <algorithm>
#include <stdexcept>

#include "tools/simulation/script.h"

namespace tombrello {

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
