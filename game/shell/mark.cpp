#include "shell/mark.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "table/painted_table.h"

namespace tombrello {
namespace {

PressPoint any_point(const Spot& spot) {
  return spot.press ? *spot.press : *spot.select;
}

float distance(PressPoint a, PressPoint b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

}  // namespace

void Mark::pointer_moved(float x, float y) {
  by_keys_ = false;
  spot_.reset();
  own_card_ = 0;
  on_melds_ = awaits_key_ = false;
  at_ = {x, y};
  mark_under_pointer();
}

// On the fan the right button's card is marked, whatever the left one would do.
void Mark::mark_under_pointer() {
  for (const Button button : {Button::right, Button::left}) {
    const auto meaning = pointer_.meaning(button, at_.x, at_.y);
    if (meaning.act != Pointer::Act::none) return show(area_of(meaning.place));
  }
  show(std::nullopt);
}

void Mark::show(const std::optional<Area>& area) {
  if (area == shown_) return;
  shown_ = area;
  window_.set_mark(area);
}

void Mark::refresh() {
  if (by_keys_ || window_.wants_places()) spots_ = places_.spots();
  if (by_keys_) {
    mark_again();
  } else {
    mark_under_pointer();
  }
  if (!window_.wants_places()) return;
  std::vector<TablePlace> told;
  int focus = -1;
  for (const Spot& spot : spots_) {
    if (shown_ && spot.told.area == *shown_) focus = static_cast<int>(told.size());
    told.push_back(spot.told);
  }
  window_.set_places(told, focus);
}

// A card stays marked while it rises and sinks. From elsewhere the mark comes into the hand at its
// last card, which is the one just drawn.
// When cards were laid or refused it goes out: the same key once more would discard.
void Mark::mark_again() {
  if (on_melds_ && !still_acts(*shown_)) {
    on_melds_ = false;
    awaits_key_ = true;
  }
  spot_ = awaits_key_ ? std::nullopt : nearest();
  if (!spot_) return show(std::nullopt);
  if (own_card_ > 0 || spots_[*spot_].own_card > 0) {
    const auto card = own_card(own_card_ > 0 ? own_card_ : kHandSlots);
    if (card) spot_ = card;
  }
  take(*spot_);
}

bool Mark::still_acts(const Area& area) const {
  return std::any_of(spots_.begin(), spots_.end(),
                     [&](const Spot& spot) { return spot.acts() && spot.told.area == area; });
}

std::optional<std::size_t> Mark::nearest() const {
  std::optional<std::size_t> best;
  for (std::size_t i = 0; i < spots_.size(); ++i) {
    if (!spots_[i].acts()) continue;
    if (!best || distance(at_, any_point(spots_[i])) < distance(at_, any_point(spots_[*best]))) {
      best = i;
    }
  }
  return best;
}

// The card in this slot or, in a shorter hand, the last one.
std::optional<std::size_t> Mark::own_card(int slot) const {
  std::optional<std::size_t> found;
  for (std::size_t i = 0; i < spots_.size(); ++i) {
    if (spots_[i].acts() && 0 < spots_[i].own_card && spots_[i].own_card <= slot) found = i;
  }
  return found;
}

void Mark::choose(std::size_t spot) {
  at_ = any_point(spots_[spot]);
  take(spot);
}

void Mark::take(std::size_t spot) {
  spot_ = spot;
  own_card_ = spots_[spot].own_card;
  on_melds_ = spots_[spot].on_melds;
  show(spots_[spot].told.area);
}

void Mark::move(Key key) {
  spots_ = places_.spots();
  const bool waited = std::exchange(awaits_key_, false);
  if (!std::exchange(by_keys_, true) || waited) {  // shows where the keys begin
    if (const auto spot = nearest()) choose(*spot);
    return;
  }
  mark_again();
  if (!spot_) return;
  std::optional<std::size_t> target;
  if (key == Key::right || key == Key::next) target = next(*spot_, 1);
  if (key == Key::left || key == Key::previous) target = next(*spot_, -1);
  if (key == Key::up || key == Key::down) target = beyond(*spot_, key == Key::up);
  if (target) choose(*target);
}

// Round the table, past its last place to the first.
std::optional<std::size_t> Mark::next(std::size_t from, int direction) const {
  const std::size_t n = spots_.size();
  for (std::size_t step = 1; step <= n; ++step) {
    const std::size_t i = (from + (direction > 0 ? step : n - step)) % n;
    if (spots_[i].acts()) return i;
  }
  return std::nullopt;
}

std::optional<std::size_t> Mark::beyond(std::size_t from, bool upward) const {
  constexpr float kAnotherRow = 30;  // units
  const PressPoint here = any_point(spots_[from]);
  std::optional<std::size_t> best;
  for (std::size_t i = 0; i < spots_.size(); ++i) {
    if (!spots_[i].acts()) continue;
    const PressPoint there = any_point(spots_[i]);
    const float rise = upward ? here.y - there.y : there.y - here.y;
    if (rise < kAnotherRow) continue;
    if (!best || distance(here, there) < distance(here, any_point(spots_[*best]))) best = i;
  }
  return best;
}

std::optional<PressPoint> Mark::point(Button button) const {
  if (!by_keys_ || !spot_) return std::nullopt;
  return point(static_cast<int>(*spot_), button);
}

std::optional<PressPoint> Mark::point(int place, Button button) const {
  if (place < 0 || place >= static_cast<int>(spots_.size())) return std::nullopt;
  const Spot& spot = spots_[static_cast<std::size_t>(place)];
  return button == Button::right ? spot.select : spot.press;
}

}  // namespace tombrello
