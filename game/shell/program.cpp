#include "shell/program.h"

namespace tombrello {
namespace {

constexpr float kOpeningWidth = 480;
constexpr float kOpeningHeight = 360;

}  // namespace

Program::Program(Platform platform)
    : window_(platform.window),
      settings_(s_, platform.archive),
      panels_(window_),
      names_(s_, window_, settings_, platform.capital),
      pointer_(s_, m_, window_, panels_, names_),
      pacing_(s_, window_, platform.timer),
      table_(s_, m_, window_),
      archive_(platform.archive),
      effects_(platform.wave, platform.beeper, s_.fruscio_opz),
      music_(platform.sequencer, window_, s_.brano, {menu_music, nomusic_0, all_0, canzoni_0},
             [this] { Set_Write(); }),
      rules_(s_, m_, platform.clock, {table_, pacing_, effects_, *this}) {
  window_.set_events(this);
}

Program::~Program() {
  window_.set_events(nullptr);
}

void Program::run() {
  Form_Load();
  window_.show_maximised();
  try {
    Form_Activate();
  } catch (const Leaving&) {
    // The player has left; nothing is saved on the way out.
  }
  Form_Unload();
}

void Program::Form_Load() {
  window_.set_caption("Frassivo - Tombrello");
  settings_.Set_Read();
  build_menus();
  window_.set_checked(velocita_0 + s_.velocita, true);
  music_.scan(archive_);
  music_.start();
  window_.set_checked(menu_card_rustle_0 + s_.fruscio_opz, true);
  effects_.prepare();
  panels_.create();
  names_.create();
}

void Program::Form_Unload() {
  music_.close();
  effects_.close();
}

void Program::Form_Activate() {
  window_.surface().set_background(kGrey);
  m_ = Metrics::at_scale(s_.scala_carte);
  open_with_picture();
  window_.surface().set_background(kFelt);
  rules_.match.Main();
}

void Program::open_with_picture() {
  window_.add_picture(quadro, {PictureSet::quadro, 0});
  const float left = m_.mezza_larghezza - kOpeningWidth / 2;
  const float top = m_.mezza_altezza - kOpeningHeight / 2;
  window_.place(quadro, {left, top, left + kOpeningWidth, top + kOpeningHeight});
  window_.bring_to_front(quadro);
  window_.set_visible(quadro, true);
  s_.click_avvio = false;
  while (!s_.click_avvio) pacing_.serve_events();
  window_.set_visible(quadro, false);
  names_.close_if_open();
}

void Program::pressed(Button button, float x, float y) {
  const bool dialog_was_open = names_.is_open();
  pointer_.Form_MouseDown(button, x, y);
  if (dialog_was_open && !names_.is_open()) repaint_after_names();
}

void Program::control_clicked(ControlId control) {
  if (control == quadro) s_.click_avvio = true;
  if (control == TxtHelp) panels_.TxtHelp_Click();
  if (control == TxtItaliano) panels_.TxtItaliano_Click();
  if (control == Text4) panels_.text4_Click();
}

void Program::control_key_pressed(ControlId control) {
  if (control == quadro) s_.click_avvio = true;
}

void Program::field_changed(ControlId field, const std::string& text) {
  names_.TxtPlayer_Change(field - TxtPlayer_0, text);
}

void Program::field_confirmed(ControlId) {
  if (!names_.is_open()) return;
  names_.confirm();
  repaint_after_names();
}

// The dealer screen is laid out again by the draw itself.
void Program::repaint_after_names() {
  if (screen_ == Screen::hand) table_.repaint_hand();
  if (screen_ == Screen::score) table_.repaint_score();
}

// The count of a hand ends with this call, whichever way the entry goes.
void Program::enable_continue(bool enabled) {
  window_.set_enabled(menu_continue, enabled);
  if (screen_ == Screen::hand) screen_ = Screen::score;
}

void Program::enable_names(bool enabled) {
  window_.set_enabled(personalize_players, enabled);
  if (enabled || !names_.is_open()) return;
  names_.close_if_open();
  table_.dealer_texts();
}

void Program::deal_begins() {
  names_.close_if_open();
  window_.set_enabled(menu_continue, false);
  screen_ = Screen::hand;
}

}  // namespace tombrello
