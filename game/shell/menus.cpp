#include <array>

#include "shell/program.h"

namespace tombrello {
namespace {

struct MenuLine {
  EntryId entry;
  EntryId parent;
  const char* caption;
};

// Left to right and top to bottom.
constexpr std::array kMenuTree = {
    MenuLine{menu_game, kMenuBar, "&Partita"},
    MenuLine{menu_replay, menu_game, "Ripeti ultima mano"},
    MenuLine{menu_continue, menu_game, "Continua"},
    MenuLine{personalize_players, menu_game, "&Nomi dei giocatori"},
    MenuLine{istruzioni, kMenuBar, "&Regole"},
    MenuLine{opzioni, kMenuBar, "&Opzioni"},
    MenuLine{game_rate, opzioni, "Velocità gioco"},
    MenuLine{velocita_0 + 1, game_rate, "Bassa"},
    MenuLine{velocita_0 + 2, game_rate, "Media"},
    MenuLine{velocita_0 + 3, game_rate, "Alta"},
    MenuLine{menu_sounds, kMenuBar, "&Suoni"},
    MenuLine{fruscio, menu_sounds, "Fruscio delle carte"},
    MenuLine{menu_card_rustle_0, fruscio, "No"},
    MenuLine{menu_card_rustle_1, fruscio, "Si"},
    MenuLine{menu_music, kMenuBar, "&Musica"},
    MenuLine{nomusic_0, menu_music, "Nessuna"},
    MenuLine{all_0, menu_music, "MODO SEQUENZIALE"},
    MenuLine{menu_about, kMenuBar, "&Info"},
    MenuLine{menu_help, kMenuBar, "&Help"},
    MenuLine{esci, kMenuBar, "&Esci"},
};

}  // namespace

void Program::build_menus() {
  for (const auto& line : kMenuTree) window_.add_entry(line.entry, line.parent, line.caption);
  window_.set_enabled(menu_continue, false);
}

void Program::entry_chosen(EntryId entry) {
  switch (entry) {
    case menu_replay:
      return menu_replay_Click();
    case menu_continue:
      return menu_continue_Click();
    case personalize_players:
      panels_.hide_all();  // they lie over the dialog's place
      return names_.personalize_players_Click();
    case istruzioni:
      return panels_.istruzioni_Click();
    case menu_about:
      return panels_.menu_about_Click();
    case menu_help:
      return panels_.menu_help_Click();
    case esci:
      return esci_Click();
    default:
      return choose_in_group(entry);
  }
}

void Program::choose_in_group(EntryId entry) {
  if (entry > velocita_0 && entry <= velocita_3) velocità_Click(entry - velocita_0);
  if (entry == menu_card_rustle_0 || entry == menu_card_rustle_1) {
    menu_card_rustle_Click(entry - menu_card_rustle_0);
  }
  if (entry == nomusic_0) music_.nomusic_Click();
  if (entry == all_0) music_.all_Click();
  if (entry > canzoni_0) music_.canzoni_Click(entry - canzoni_0);
  if (entry == all_0 || entry > canzoni_0) tell_missing_package();
}

// Once: who wants music without it has chosen so.
void Program::tell_missing_package() {
  const std::string package = sequencer_.missing_package();
  if (package.empty() || has_told_package_) return;
  has_told_package_ = true;
  trouble_ = "Per sentire la musica installa il pacchetto " + package;
}

void Program::menu_replay_Click() {
  if (!s_.mano_salvata) {
    window_.message_box("Nessuna mano è stata ancora giocata", Buttons::ok);
    return;
  }
  window_.message_box(
      "Nel punteggio finale saranno riportati i risultati della mano ripetuta\n"
      "Questi sostituiranno quelli della mano precedente",
      Buttons::ok);
  window_.set_checked(menu_replay, true);
}

// The pace lasts for the run; the settings file keeps what it had.
void Program::velocità_Click(int index) {
  for (int i = 1; i <= 3; ++i) window_.set_checked(velocita_0 + i, false);
  s_.ritardo_base = static_cast<float>(index) * 0.5F;
  window_.set_checked(velocita_0 + index, true);
}

void Program::menu_card_rustle_Click(int index) {
  panels_.text4_Click();
  window_.set_checked(menu_card_rustle_0, false);
  window_.set_checked(menu_card_rustle_1, false);
  window_.set_checked(menu_card_rustle_0 + index, true);
  s_.fruscio_opz = static_cast<std::uint8_t>(index);
  Set_Write();
}

void Program::esci_Click() {
  if (window_.message_box("Uscire da Tombrello?", Buttons::yes_no) == Answer::no) return;
  window_.surface().clear();
  window_.close();
}

}  // namespace tombrello
