#include "match/state_check.h"

#include <algorithm>

#include "melds/meld_range.h"

namespace tombrello {
namespace {

std::string at_seat(const char* what, int seat) {
  return std::string(what) + " of seat " + std::to_string(seat);
}

// Cards by their faces; what is no card isn't counted.
class Count {
 public:
  void add(int card) {
    if (card < 1 || card > kCards) return;
    ++copies_[static_cast<std::size_t>(first_pack_twin(card))];
    ++total_;
  }
  int total() const { return total_; }
  bool two_of_each() const {
    return std::all_of(copies_.begin() + 1, copies_.end(), [](int n) { return n == 2; });
  }

 private:
  std::array<std::uint8_t, kPack + 1> copies_{};
  int total_ = 0;
};

std::string check_hand(const State& s, int seat, Count& count) {
  if (s.n_mano[seat] > kHandCards) return at_seat("more than 13 cards in the hand", seat);
  const auto& mano = s.mano[seat];
  PresenceString held;
  for (int k = 1; k <= s.n_mano[seat]; ++k) {
    if (mano[k] < 1 || mano[k] > kCards) return at_seat("no card in a used slot", seat);
    held.mark(mano[k]);
    count.add(mano[k]);
  }
  if (seat != 1 && held != s.presenze[seat]) return at_seat("stale presence string", seat);
  const bool rest_empty = std::all_of(mano.begin() + s.n_mano[seat] + 1, mano.end(),
                                      [](int card) { return card == 0; });
  if (seat == 1 && !rest_empty) return "left-overs in the person's hand";
  return {};
}

std::string check_list(const State& s, int seat, Count& count) {
  const auto& list = s.calate[seat];
  const int n = s.n_calate[seat];
  if (n > kListPositions || list[0] != 0) return at_seat("list out of bounds", seat);
  if (n > 0 && list[n] != kSentinel) return at_seat("list without its last sentinel", seat);
  for (const Meld meld : melds_of(s, seat)) {
    if (meld.cards() < kSmallestMeld) return at_seat("meld of fewer than three cards", seat);
    for (int k = meld.first; k <= meld.last; ++k) {
      if (list[k] < 1 || list[k] > kCards) return at_seat("no card in a meld", seat);
      count.add(list[k]);
    }
  }
  return {};
}

// `count` holds the cards of hands and melds.
std::string check_cards(const State& s, StateCheck expected, Count count) {
  for (int k = 0; k < s.n_pozzo; ++k) count.add(s.pozzo[k]);
  if (s.stock_empty && !expected.hand_over) return "no card in the stock";
  const int stock = s.stock_empty ? 0 : kCards + 1 - s.tallone;
  for (int k = kCards + 1 - stock; k <= kCards; ++k) count.add(s.mazzo[k]);
  if (count.total() != kCards) return "not 104 cards but " + std::to_string(count.total());
  if (expected.whole_deck && !count.two_of_each()) return "a card more or less than twice";
  const int pile_and_stock = s.n_pozzo + stock;
  const bool no_discard = expected.hand_over && pile_and_stock == kPack - 1;
  if (pile_and_stock != kPack && !no_discard) return "pile and stock don't make 52";
  if (s.n_pozzo < 1 && !no_discard) return "no card on the pile";
  return {};
}

}  // namespace

std::string check_state(const State& state, StateCheck expected) {
  if (state.tallone < 54 || state.tallone > kCards) return "stock out of bounds";
  if (state.n_pozzo < 0 || state.n_pozzo > kPack) return "pile out of bounds";
  Count count;
  for (int seat = 1; seat <= kSeats; ++seat) {
    std::string fault = check_hand(state, seat, count);
    if (fault.empty()) fault = check_list(state, seat, count);
    if (!fault.empty()) return fault;
  }
  return check_cards(state, expected, count);
}

}  // namespace tombrello
