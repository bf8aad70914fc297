#pragma once

#include <string>

#include "cards/state.h"
#include "seam/capital.h"
#include "seam/window.h"
#include "shell/ids.h"
#include "shell/settings.h"
#include "table/painted_table.h"

namespace tombrello {

/// The dialog of the players' names, drawn on the table itself. It stops nothing: the game waits
/// for the opening picture or the deck meanwhile.
class NamesDialog {
 public:
  NamesDialog(State& state, Window& window, Settings& settings, PaintedTable& table,
              Capital capital)
      : s_(state), window_(window), settings_(settings), table_(table), capital_(capital) {}

  /// Creates fields and shapes, hidden.
  void create();

  void personalize_players_Click();
  void TxtPlayer_Change(int index, const std::string& text);

  bool is_open() const { return window_.visible(TxtPlayer_0 + 1); }
  /// A press there confirms the names while the dialog is open.
  static Place confirm_button();
  /// The one end of the dialog, if it is open: keeps the names, closes, and puts the table in
  /// order. Confirmed, the table is cleared and painted again, by the game or here; left open
  /// until the game went on, only the dialog's place is.
  void end(bool confirmed);

 private:
  void hide();

  State& s_;
  Window& window_;
  Settings& settings_;
  PaintedTable& table_;
  Capital capital_;
};

}  // namespace tombrello
