#include <utf8.h>

#include <algorithm>
#include <string>

#include "table/painted_table.h"

namespace tombrello {
namespace {

constexpr float kPanelStep = 3;
constexpr int kPanelStepShown = 6;  // milliseconds; the whole within half a second
constexpr int kMostLetters = 7;     // of a name
constexpr float kTitleX = 500;      // right of seat 3's place

// Length in bytes of the UTF-8 character that starts at `at`, inside the text.
std::size_t character_length(const std::string& text, std::size_t at) {
  const auto from = text.begin() + static_cast<std::ptrdiff_t>(at);
  auto end = from;
  utf8::next(end, text.end());
  return static_cast<std::size_t>(end - from);
}

}  // namespace

void PaintedTable::Posiziona_Players() {
  surface_.set_font_size(8);
  for (const int seat : {1, 3, 2, 4}) {
    const bool on_turn = s_.di_turno == seat && s_.azione != kDealerDraw;
    surface_.set_text_colour(on_turn ? kWhite : kGreen);
    print_name(seat);
  }
}

void PaintedTable::print_name(int seat) {
  const std::string& name = s_.nomi[static_cast<std::size_t>(seat - 1)];
  const float x = g_.mezza_larghezza - g_.larghezza_carta / 2;
  switch (seat) {
    case 1:
      surface_.set_text_position(x, 2 * g_.mezza_altezza - 1.2F * g_.altezza_carta - 22);
      surface_.print(name);
      break;
    case 3:
      surface_.set_text_position(x, g_.altezza_carta + 30);
      surface_.print(name);
      break;
    case 2:
      print_name_downward(name, g_.altezza_carta + 30);
      break;
    default:
      print_name_downward(name, 2 * g_.mezza_larghezza - g_.altezza_carta - 38);
      break;
  }
}

// Printing nothing takes away what a longer name left there.
void PaintedTable::print_name_downward(const std::string& name, float x) {
  std::size_t at = 0;
  for (int i = 1; i <= kMostLetters; ++i) {
    const std::size_t length = at < name.size() ? character_length(name, at) : 0;
    const float pitch = surface_.font_size() + 10;
    surface_.set_text_position(x, g_.mezza_altezza - 50 + pitch * static_cast<float>(i));
    surface_.print(name.substr(at, length));
    at += length;
  }
}

void PaintedTable::dealer_screen() {
  surface_.set_font_name("Brush Script MT");
  surface_.set_font_size(24);
  surface_.set_text_colour(kWhite);
  surface_.set_text_position(kTitleX, 20);
  surface_.print("Tombrello");
  surface_.set_font_name("Arial");  // from here on the font of every text on the table
  surface_.set_font_size(8);
  surface_.set_text_x(kTitleX);
  surface_.print("by Frassivo");
  dealer_texts();
}

void PaintedTable::dealer_texts() {
  Posiziona_Players();
  surface_.set_font_size(9);
  surface_.set_text_colour(kWhite);
  surface_.set_text_position(5, 5);
  surface_.print("Scelta cartaro - Clicca sul mazzo");
}

void PaintedTable::reshuffle_message() {
  const Place place = g_.reshuffle_message();
  surface_.set_text_position(place.left, place.top);
  surface_.print("Rimescolo le carte del Pozzo");
}

void PaintedTable::reshuffle_begins() {
  pile_empty();
  paint_upright({PictureSet::dorsov, 0}, g_.shuffled_pile());
}

void PaintedTable::reshuffle_ends() {
  erase_under_strips(g_.shuffled_pile());
  erase_under_strips(g_.reshuffle_message());
}

void PaintedTable::panel_line() {
  panel_box(g_.mezza_larghezza, g_.mezza_larghezza + 1);
}

void PaintedTable::panel_box(float x1, float x2) {
  surface_.filled_box(x1, g_.count_panel().top, x2, g_.count_panel().bottom, kGreen);
}

void PaintedTable::panel_opens() {
  const float x = g_.mezza_larghezza;
  const Place panel = g_.count_panel();
  erase({x - 10, panel.top, x + 10, panel.top + 10});
  for (float half = 1; half <= panel.right - x; half += kPanelStep) {
    panel_box(x, x - half);
    panel_box(x, x + half);
    window_.show_now(kPanelStepShown);
  }
}

void PaintedTable::scoreboard() {
  surface_.set_text_position(0, g_.count_panel().top + 5);
  surface_.set_text_colour(kBlue);
  print_score_line("Game    " + s_.squadre[0], s_.squadre[1]);
  surface_.set_text_colour(kWhite);
  for (int hand = std::max(1, s_.numero_mano - kLastRow + 1); hand <= s_.numero_mano; ++hand) {
    // The latest hands stand in the last rows, however many hands were played.
    const int row = std::min(int{s_.numero_mano}, kLastRow) - (s_.numero_mano - hand);
    const auto& points = s_.punti_mano[static_cast<std::size_t>(row)];
    print_score_line(std::to_string(hand) + "    " + std::to_string(points[1]),
                     std::to_string(points[2]));
  }
  surface_.set_text_colour(kBlack);
  print_score_line("      " + std::to_string(s_.punti_totali[1]),
                   std::to_string(s_.punti_totali[2]));
  surface_.set_text_colour(kWhite);
}

void PaintedTable::print_score_line(const std::string& left, const std::string& right) {
  surface_.set_text_x(g_.mezza_larghezza - 180);
  surface_.print_staying(left);
  surface_.set_text_x(g_.mezza_larghezza + 90);
  surface_.print(right);
}

}  // namespace tombrello
