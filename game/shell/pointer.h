#pragma once

#include "cards/geometry.h"
#include "cards/state.h"
#include "seam/window.h"
#include "shell/names_dialog.h"
#include "shell/panels.h"
#include "told/chronicle.h"

namespace tombrello {

/// What a press or a move of the pointer means. The handlers post codes and flags and finish at
/// once; they act on no hand, pile or meld. Coordinates are logical units.
class Pointer {
 public:
  Pointer(State& state, const Geometry& geometry, Window& window, Panels& panels,
          NamesDialog& names, Chronicle& chronicle)
      : s_(state),
        g_(geometry),
        window_(window),
        panels_(panels),
        names_(names),
        chronicle_(chronicle) {}

  void Form_MouseDown(Button button, float x, float y);
  void Form_MouseMove(float x, float y);

  /// What a press here and now would do, and with what. The up arrow is taken as a move to this
  /// place would leave it.
  enum class Act {
    none,
    confirm_names,
    draw_for_dealer,
    draw_from_pile,
    draw_from_stock,
    select,   ///< or unselect
    discard,  ///< or lower the selected cards
    add,      ///< the selected card, to a meld
    lay       ///< the selected cards, as a meld
  };
  struct Meaning {
    Act act = Act::none;
    Place place;  ///< of what the press is for, as it is painted
    bool operator==(const Meaning&) const = default;
  };
  Meaning meaning(Button button, float x, float y) const;

 private:
  void press_right(float x, float y);
  void press_left(float x, float y);
  void press_on_dealer_deck(float x, float y);
  void press_before_draw(float x, float y);
  void press_on_melds(float x, float y);
  void tell_to_draw_first();
  void tell_why_nothing_happens(float x, float y);
  bool is_on_strip(int seat, float x, float y) const;
  Meaning right_press(float x, float y) const;
  Meaning left_press(float x, float y) const;
  Meaning press_on_side(int side, float x) const;
  bool waits_for_press() const;
  Place card_at(float x) const;
  Place meld_for(int side, float x) const;
  int count_selected() const;
  bool is_on_fan(float x, float y) const { return g_.fan(s_.n_mano[1]).holds(x, y); }

  State& s_;
  const Geometry& g_;
  Window& window_;
  Panels& panels_;
  NamesDialog& names_;
  Chronicle& chronicle_;
};

}  // namespace tombrello
