#pragma once

#include "seam/window.h"
#include "shell/ids.h"

namespace tombrello {

/// The three text panels over the table's top left corner: at most one of them is showing.
class Panels {
 public:
  explicit Panels(Window& window) : window_(window) {}

  /// Creates them, hidden.
  void create();
  void hide_all();
  bool any_open() const;

  void menu_help_Click() { toggle(TxtHelp); }
  void istruzioni_Click() { toggle(TxtItaliano); }
  void menu_about_Click() { toggle(Text4); }
  void TxtHelp_Click() { window_.set_visible(TxtHelp, false); }
  void text4_Click() { window_.set_visible(Text4, false); }
  void TxtItaliano_Click();

 private:
  void toggle(ControlId panel);

  Window& window_;
};

}  // namespace tombrello
