#include "shell/names_dialog.h"

#include <array>
#include <string>

#include "shell/player_name.h"

namespace tombrello {
namespace {

constexpr float kWidth = 158;
constexpr float kHeadingBottom = 30;
constexpr float kBottom = 130;
constexpr float kFieldX = 75;
constexpr float kFieldTop = 32;
constexpr float kFieldWidth = 60;
constexpr float kFieldHeight = 14.8F;
constexpr float kShapeTop = 115;
constexpr float kShapeHeight = 9.9F;
const std::array<std::string, kSeats> kWhose = {"Il tuo nome", "Nome di chi siede a sinistra",
                                                "Nome del compagno", "Nome di chi siede a destra"};
constexpr Colour kShape0Colour = 32896;
constexpr Colour kShape1Colour = 49344;

float field_top(int index) {
  return kFieldTop + static_cast<float>(index - 1) * kFieldHeight;
}

std::string label(int index) {
  return index == 1 ? "Player1 (you)" : "Player" + std::to_string(index);
}

}  // namespace

void NamesDialog::create() {
  for (int i = 1; i <= kSeats; ++i) {
    window_.add_field(TxtPlayer_0 + i, allowed_in_name, {"MS Sans Serif", 7.8F});
    window_.name_field(TxtPlayer_0 + i, kWhose[static_cast<std::size_t>(i - 1)]);
  }
  window_.add_shape(Shape1_0, kShape0Colour);
  window_.add_shape(Shape1_1, kShape1Colour);
}

void NamesDialog::personalize_players_Click() {
  Surface& surface = window_.surface();
  surface.filled_box(0, 0, kWidth, kHeadingBottom, kPaleYellow);
  surface.set_font_size(8);
  surface.set_text_colour(kBlack);
  surface.set_text_position(5, 5);
  surface.print("  Personalize Players");
  surface.open_box(0, kHeadingBottom, kWidth, kBottom, kYellow);
  surface.set_font_size(8);
  surface.set_text_colour(kWhite);
  for (int i = 1; i <= kSeats; ++i) {
    const ControlId field = TxtPlayer_0 + i;
    const float top = field_top(i);
    window_.place(field, {kFieldX, top, kFieldX + kFieldWidth, top + kFieldHeight});
    window_.set_visible(field, true);
    surface.set_text_position(5, top + 1);
    TxtPlayer_Change(i, s_.nomi[static_cast<std::size_t>(i - 1)]);  // a field holds capitals
    window_.set_text(field, s_.nomi[static_cast<std::size_t>(i - 1)]);
    surface.print(label(i));
  }
  window_.bring_to_front(TxtPlayer_0 + 1);
  for (const ControlId shape : {Shape1_0, Shape1_1}) {
    window_.place(shape, area_of(confirm_button()));
    window_.set_visible(shape, true);
  }
  window_.bring_to_front(Shape1_0);
}

// The field goes on showing what was typed.
void NamesDialog::TxtPlayer_Change(int index, const std::string& text) {
  s_.nomi[static_cast<std::size_t>(index - 1)] = name_from_typed(text, capital_);
}

Place NamesDialog::confirm_button() {
  return {kFieldX, kShapeTop, kFieldX + kFieldWidth, kShapeTop + kShapeHeight};
}

void NamesDialog::end(bool confirmed) {
  if (!is_open()) return;
  settings_.Registra_Players();
  hide();
  if (confirmed) {
    s_.azione = kNamesConfirmed;  // the draw for dealer lays its screen out again
    table_.repaint();
    return;
  }
  // What the dialog printed goes; nothing but the prompt of the draw stands in this corner.
  window_.surface().filled_box(0, 0, kWidth, kBottom, window_.surface().background());
  if (s_.phase == Phase::draw) table_.dealer_texts();
}

void NamesDialog::hide() {
  for (int i = 1; i <= kSeats; ++i) window_.set_visible(TxtPlayer_0 + i, false);
  window_.set_visible(Shape1_0, false);
  window_.set_visible(Shape1_1, false);
}

}  // namespace tombrello
