#include "shell/program.h"

namespace tombrello {

Program::Program(Platform platform)
    : window_(platform.window),
      settings_(s_, platform.archive),
      panels_(window_),
      table_(s_, g_, window_),
      names_(s_, window_, settings_, table_, platform.capital),
      chronicle_(s_, window_),
      pointer_(s_, g_, window_, panels_, names_, chronicle_),
      places_(s_, g_, pointer_),
      mark_(window_, pointer_, places_),
      pacing_(s_, window_, platform.timer, [this] { before_wait(); }),
      archive_(platform.archive),
      effects_(platform.wave, platform.beeper, s_.fruscio_opz),
      music_(platform.sequencer, window_, s_.brano, {menu_music, nomusic_0, all_0, canzoni_0},
             [this] { Set_Write(); }),
      rules_(s_, g_, platform.clock, {table_, pacing_, effects_, *this, chronicle_}),
      sequencer_(platform.sequencer) {
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
  g_ = Geometry::at_scale(s_.scala_carte);
  open_with_picture();
  window_.surface().set_background(kFelt);
  rules_.match.Main();
}

void Program::open_with_picture() {
  window_.add_picture(quadro, {PictureSet::quadro, 0});
  window_.place(quadro, area_of(g_.opening()));
  window_.bring_to_front(quadro);
  window_.set_visible(quadro, true);
  s_.click_avvio = false;
  while (!s_.click_avvio) pacing_.serve_events();
  window_.set_visible(quadro, false);
  names_.end(false);
}

void Program::pressed(Button button, float x, float y) {
  pointer_.Form_MouseDown(button, x, y);
}

void Program::control_clicked(ControlId control) {
  if (control == quadro) s_.click_avvio = true;
  if (control == TxtHelp) panels_.TxtHelp_Click();
  if (control == TxtItaliano) panels_.TxtItaliano_Click();
  if (control == Text4) panels_.text4_Click();
}

// A panel over the picture takes the keys.
void Program::control_key_pressed(ControlId control) {
  if (panels_.any_open()) return panels_.hide_all();
  if (control == quadro) s_.click_avvio = true;
}

void Program::field_changed(ControlId field, const std::string& text) {
  names_.TxtPlayer_Change(field - TxtPlayer_0, text);
}

void Program::field_confirmed(ControlId) {
  names_.end(true);
}

// There is one, of a tie in the draw for dealer.
void Program::message(const std::string& text) {
  chronicle_.remark("Parità tra le carte più alte: si ripete");
  chronicle_.show(mark_.by_keys());
  window_.message_box(text, Buttons::ok);
}

// What can't be kept is said once; the game goes on.
void Program::Set_Write() {
  settings_.Set_Write();
  const std::string complaint = settings_.complaint();
  if (complaint.empty() || has_complained_) return;
  has_complained_ = true;
  trouble_ = complaint;
}

}  // namespace tombrello
