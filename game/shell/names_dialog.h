#pragma once

#include <string>

#include "cards/state.h"
#include "seam/capital.h"
#include "seam/window.h"
#include "shell/ids.h"
#include "shell/settings.h"

namespace tombrello {

/// The dialog of the players' names, drawn on the table itself. It stops nothing: the game waits
/// for the opening picture or the deck meanwhile.
class NamesDialog {
 public:
  NamesDialog(State& state, Window& window, Settings& settings, Capital capital)
      : s_(state), window_(window), settings_(settings), capital_(capital) {}

  /// Creates fields and shapes, hidden.
  void create();

  void personalize_players_Click();
  void TxtPlayer_Change(int index, const std::string& text);

  bool is_open() const { return window_.visible(TxtPlayer_0 + 1); }
  /// True if a press there confirms the names while the dialog is open.
  bool is_on_confirm_button(float x, float y) const;
  /// Keeps the names, closes, and clears the table for a screen that is laid out again.
  void confirm();
  /// Keeps the names and closes, leaving the table's picture but for the dialog's place.
  void close_if_open();

 private:
  void hide();

  State& s_;
  Window& window_;
  Settings& settings_;
  Capital capital_;
};

}  // namespace tombrello
