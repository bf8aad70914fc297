#include "seam/surface.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tombrello {
namespace {

// Nobody may be listening: past this many notes a repaint of everything is cheaper anyway.
constexpr std::size_t kMostNotes = 400;

Area ordered(float x1, float y1, float x2, float y2) {
  return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}

bool starts_where(const TextItem& a, const TextItem& b) {
  return a.x == b.x && a.y == b.y && a.lines_above == b.lines_above;
}

}  // namespace

bool Area::contains(const Area& other) const {
  return left <= other.left && top <= other.top && right >= other.right && bottom >= other.bottom;
}

bool Area::contains(float x, float y) const {
  return left <= x && x <= right && top <= y && y <= bottom;
}

bool Area::meets(const Area& other) const {
  return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
}

void Surface::clear() {
  items_.clear();
  changes_ = {true, {}};
  set_text_position(0, 0);
}

void Surface::set_background(Colour colour) {
  background_ = colour;
  clear();
}

void Surface::note(const Item& item) {
  if (changes_.everything) return;
  if (changes_.items.size() >= kMostNotes) {
    changes_ = {true, {}};
    return;
  }
  changes_.items.push_back(item);
}

void Surface::add(Item item) {
  note(item);
  items_.push_back(std::move(item));
}

void Surface::drop_covered_by(const Area& area) {
  auto covered = [&](const Item& item) {
    bool gone = false;
    if (const auto* text = std::get_if<TextItem>(&item)) {
      gone = area.contains(text->x, text->y) && text->lines_above.empty();
    } else if (const auto* box = std::get_if<BoxItem>(&item)) {
      gone = area.contains(box->area);
    } else {
      gone = area.contains(std::get<PictureItem>(item).area);
    }
    if (gone) note(item);
    return gone;
  };
  std::erase_if(items_, covered);
}

void Surface::filled_box(float x1, float y1, float x2, float y2, Colour colour) {
  const Area area = ordered(x1, y1, x2, y2);
  drop_covered_by(area);
  add(BoxItem{area, colour, true});
}

// The box goes below the lowest spared picture that it meets. What it hides goes below it.
void Surface::filled_box_under(const Area& area, Colour colour,
                               const std::function<bool(const PictureItem&)>& spared) {
  const auto is_spared = [&](const Item& item) {
    const auto* picture = std::get_if<PictureItem>(&item);
    return picture != nullptr && picture->area.meets(area) && spared(*picture);
  };
  const auto is_hidden = [&](const Item& item) {
    if (const auto* box = std::get_if<BoxItem>(&item)) return box->area.meets(area);
    if (const auto* text = std::get_if<TextItem>(&item)) return area.contains(text->x, text->y);
    const auto* picture = std::get_if<PictureItem>(&item);
    return picture != nullptr && picture->area.meets(area) && !spared(*picture);
  };
  const auto lowest = std::find_if(items_.begin(), items_.end(), is_spared);
  const auto lowest_over = std::stable_partition(lowest, items_.end(), is_hidden);
  std::vector<Item> over(lowest_over, items_.end());
  items_.erase(lowest_over, items_.end());
  filled_box(area.left, area.top, area.right, area.bottom, colour);
  std::move(over.begin(), over.end(), std::back_inserter(items_));
}

void Surface::open_box(float x1, float y1, float x2, float y2, Colour colour) {
  const Item frame = BoxItem{ordered(x1, y1, x2, y2), colour, false};
  std::erase(items_, frame);
  add(frame);
}

void Surface::paint(Picture picture, float x, float y, float width, float height) {
  PictureItem item{ordered(x, y, x + width, y + height), picture, width < 0, height < 0};
  // Pictures may have transparent corners: one takes the place of another only where both
  // stand on the same place, so that nothing shows through and nothing is painted twice.
  std::erase_if(items_, [&](const Item& old) {
    const auto* other = std::get_if<PictureItem>(&old);
    return other != nullptr && other->area == item.area;
  });
  add(item);
}

void Surface::print_staying(const std::string& text) {
  TextItem item{x_, y_, lines_above_, text, font_, text_colour_};
  std::erase_if(items_, [&](const Item& old) {
    const auto* other = std::get_if<TextItem>(&old);
    if (other == nullptr || !starts_where(*other, item)) return false;
    note(old);
    return true;
  });
  if (!text.empty()) add(std::move(item));
}

void Surface::print(const std::string& text) {
  print_staying(text);
  x_ = 0;
  lines_above_.push_back(font_);
}

void Surface::set_text_position(float x, float y) {
  x_ = x;
  y_ = y;
  lines_above_.clear();
}

Surface::Changes Surface::take_changes() {
  return std::exchange(changes_, {});
}

}  // namespace tombrello
