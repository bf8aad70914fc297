#pragma once

#include <string>

#include "cards/clock.h"
#include "cards/geometry.h"
#include "cards/outside.h"
#include "cards/state.h"
#include "match/rules.h"
#include "seam/archive.h"
#include "seam/beeper.h"
#include "seam/capital.h"
#include "seam/media.h"
#include "seam/timer.h"
#include "seam/window.h"
#include "shell/mark.h"
#include "shell/names_dialog.h"
#include "shell/pacing.h"
#include "shell/panels.h"
#include "shell/places.h"
#include "shell/pointer.h"
#include "shell/settings.h"
#include "sound/effects.h"
#include "sound/music.h"
#include "table/painted_table.h"

namespace tombrello {

/// What the program is given of the outside; all of it outlives the program.
struct Platform {
  Window& window;
  Timer& timer;
  Archive& archive;
  Clock& clock;
  MediaControl& wave;
  MediaControl& sequencer;
  Beeper& beeper;
  char32_t (&capital)(char32_t letter);  ///< as `Capital`
};

/// The program: owns the state of a run, and binds window, table, rules and settings. All of
/// its life runs in `run`; handlers run nested in the waits of the game.
class Program : public WindowEvents, public MediaEvents, public Shell {
 public:
  explicit Program(Platform platform);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program() override;

  /// From the window's first show to the player's leaving.
  void run();

  const State& state() const { return s_; }
  const Geometry& geometry() const { return g_; }

  void pressed(Button button, float x, float y) override;
  void moved(float x, float y) override;
  void entry_chosen(EntryId entry) override;
  void control_clicked(ControlId control) override;
  void control_key_pressed(ControlId control) override;
  void field_changed(ControlId field, const std::string& text) override;
  void field_confirmed(ControlId field) override;
  void key_pressed(Key key) override;
  void key_released(Key key) override;
  void place_pressed(int place, Button button) override;
  void timer_ticked() override { pacing_.Timer1_Timer(); }

  void media_done(int code) override { music_.media_done(code); }

  void Set_Write() override;
  void enable_replay(bool enabled) override { window_.set_enabled(menu_replay, enabled); }
  void enable_continue(bool enabled) override { window_.set_enabled(menu_continue, enabled); }
  void enable_names(bool enabled) override { window_.set_enabled(personalize_players, enabled); }
  bool replay_checked() override { return window_.checked(menu_replay); }
  void uncheck_replay() override { window_.set_checked(menu_replay, false); }
  void dealer_card_turned() override { names_.end(false); }
  void deal_begins() override { names_.end(false); }
  void message(const std::string& text) override;

 private:
  void Form_Load();
  void Form_Activate();
  void Form_Unload();
  void build_menus();
  void open_with_picture();
  void menu_replay_Click();
  void menu_continue_Click() { s_.continua = true; }
  void velocità_Click(int index);
  void menu_card_rustle_Click(int index);
  void esci_Click();
  void choose_in_group(EntryId entry);
  void tell_missing_package();
  void before_wait();
  void press_enter();
  void press_space();
  void press_at(std::optional<PressPoint> point, Button button);

  State s_;
  Geometry g_;
  Window& window_;
  Settings settings_;
  Panels panels_;
  PaintedTable table_;
  NamesDialog names_;
  Chronicle chronicle_;
  Pointer pointer_;
  Places places_;
  Mark mark_;
  Pacing pacing_;
  Archive& archive_;
  Effects effects_;
  Music music_;
  Rules rules_;
  MediaControl& sequencer_;
  std::string trouble_;          ///< to be told when the game next waits for the player
  bool has_complained_ = false;  ///< that settings can't be kept
  bool has_told_package_ = false;
};

}  // namespace tombrello
