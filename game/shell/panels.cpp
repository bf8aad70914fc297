#include "shell/panels.h"

#include "shell/panel_texts.h"

namespace tombrello {
namespace {

constexpr const char* kPanelFont = "MS Sans Serif";
constexpr long kSystemColour = -1;
constexpr Area kTextPanel = {0, 0, 285, 197.7F};
constexpr Area kInfoPanel = {0, 0, 150.8F, 80.1F};

}  // namespace

void Panels::create() {
  window_.add_panel(TxtHelp, kHelpText, {kPanelFont, 12}, kSystemColour, kSystemColour);
  window_.add_panel(TxtItaliano, kRulesText, {kPanelFont, 12}, kSystemColour, kSystemColour);
  window_.add_panel(Text4, kInfoText, {kPanelFont, 7.8F}, kBlack, kPaleYellow);
  window_.place(TxtItaliano, kTextPanel);
  window_.place(TxtHelp, kTextPanel);
  window_.place(Text4, kInfoPanel);
}

void Panels::hide_all() {
  for (const ControlId panel : {TxtItaliano, TxtHelp, Text4}) window_.set_visible(panel, false);
}

bool Panels::any_open() const {
  return window_.visible(TxtItaliano) || window_.visible(TxtHelp) || window_.visible(Text4);
}

void Panels::toggle(ControlId panel) {
  for (const ControlId other : {TxtItaliano, TxtHelp, Text4}) {
    if (other != panel) window_.set_visible(other, false);
  }
  const bool show = !window_.visible(panel);
  window_.set_visible(panel, show);
  if (show) window_.bring_to_front(panel);
}

void Panels::TxtItaliano_Click() {
  window_.set_visible(TxtItaliano, false);
  window_.set_visible(TxtHelp, false);
}

}  // namespace tombrello
