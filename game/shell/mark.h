#pragma once

#include <optional>
#include <vector>

#include "shell/places.h"

namespace tombrello {

/// The mark over the table: what a press here and now would act on. It follows the pointer, and
/// the keys move it from place to place.
class Mark {
 public:
  Mark(Window& window, const Pointer& pointer, const Places& places)
      : window_(window), pointer_(pointer), places_(places) {}

  void pointer_moved(float x, float y);
  /// To the next or previous place where a press does something, or to one above or below.
  void move(Key key);
  /// Before each wait: the table may have changed under the mark.
  void refresh();
  bool by_keys() const { return by_keys_; }  ///< they moved it last

  /// Where the marked place takes a press of this button, if the keys have marked one.
  std::optional<PressPoint> point(Button button) const;
  /// The same for a place by its number in the last `set_places`.
  std::optional<PressPoint> point(int place, Button button) const;

 private:
  void mark_under_pointer();
  void mark_again();
  bool still_acts(const Area& area) const;
  std::optional<std::size_t> nearest() const;
  std::optional<std::size_t> own_card(int slot) const;
  void choose(std::size_t spot);
  void take(std::size_t spot);
  void show(const std::optional<Area>& area);
  std::optional<std::size_t> next(std::size_t from, int direction) const;
  std::optional<std::size_t> beyond(std::size_t from, bool upward) const;

  Window& window_;
  const Pointer& pointer_;
  const Places& places_;
  std::vector<Spot> spots_;  ///< as they stood at the last refresh
  bool by_keys_ = false;
  PressPoint at_{-1, -1};            ///< of the pointer, or of the marked place
  std::optional<std::size_t> spot_;  ///< the marked place, with the keys
  int own_card_ = 0;                 ///< its slot, if it is a card of the player's
  bool on_melds_ = false;            ///< it is a meld, or where one can be laid
  bool awaits_key_ = false;          ///< nothing is marked until a key moves
  std::optional<Area> shown_;
};

}  // namespace tombrello
