#pragma once

#include "cards/metrics.h"
#include "cards/state.h"
#include "seam/window.h"
#include "shell/names_dialog.h"
#include "shell/panels.h"

namespace tombrello {

/// What a press or a move of the pointer means. The handlers post codes and flags and finish at
/// once; they act on no hand, pile or meld. Coordinates are logical units.
class Pointer {
 public:
  Pointer(State& state, const Metrics& metrics, Window& window, Panels& panels, NamesDialog& names)
      : s_(state), m_(metrics), window_(window), panels_(panels), names_(names) {}

  void Form_MouseDown(Button button, float x, float y);
  void Form_MouseMove(float x, float y);

 private:
  void press_right(float x, float y);
  void press_left(float x, float y);
  void press_on_dealer_deck(float x, float y);
  void press_before_draw(float x, float y);
  void press_on_melds(float x, float y);
  bool is_on_fan(float x, float y) const;
  bool is_in_table_band(float y) const;
  bool is_in_partner_band(float y) const;
  float own_band_top() const { return m_.mezza_altezza + m_.altezza_carta + 20; }
  float prompt_y() const { return 2 * m_.mezza_altezza - 100; }

  State& s_;
  const Metrics& m_;
  Window& window_;
  Panels& panels_;
  NamesDialog& names_;
};

}  // namespace tombrello
