#pragma once

#include <string>

#include "cards/clock.h"
#include "cards/metrics.h"
#include "cards/outside.h"
#include "cards/state.h"
#include "match/rules.h"
#include "seam/archive.h"
#include "seam/beeper.h"
#include "seam/capital.h"
#include "seam/media.h"
#include "seam/timer.h"
#include "seam/window.h"
#include "shell/names_dialog.h"
#include "shell/pacing.h"
#include "shell/panels.h"
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
  const Metrics& metrics() const { return m_; }

  void pressed(Button button, float x, float y) override;
  void moved(float x, float y) override { pointer_.Form_MouseMove(x, y); }
  void entry_chosen(EntryId entry) override;
  void control_clicked(ControlId control) override;
  void control_key_pressed(ControlId control) override;
  void field_changed(ControlId field, const std::string& text) override;
  void field_confirmed(ControlId field) override;
  void timer_ticked() override { pacing_.Timer1_Timer(); }

  void media_done(int code) override { music_.media_done(code); }

  void Set_Write() override { settings_.Set_Write(); }
  void enable_replay(bool enabled) override { window_.set_enabled(menu_replay, enabled); }
  void enable_continue(bool enabled) override;
  void enable_names(bool enabled) override;
  bool replay_checked() override { return window_.checked(menu_replay); }
  void uncheck_replay() override { window_.set_checked(menu_replay, false); }
  void deal_begins() override;
  void message(const std::string& text) override { window_.message_box(text, Buttons::ok); }

 private:
  /// What stands on the table, to paint it again after the names dialog has cleared it.
  enum class Screen { before_hands, hand, score };

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
  void repaint_after_names();

  State s_;
  Metrics m_;
  Window& window_;
  Settings settings_;
  Panels panels_;
  NamesDialog names_;
  Pointer pointer_;
  Pacing pacing_;
  PaintedTable table_;
  Archive& archive_;
  Effects effects_;
  Music music_;
  Rules rules_;
  Screen screen_ = Screen::before_hands;
};

}  // namespace tombrello
