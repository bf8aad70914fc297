#pragma once

#include "seam/window.h"

namespace tombrello {

/// Numbers of the menu entries. Entries with an index form groups that count up from their first.
enum MenuEntry : EntryId {
  menu_game = 1,
  menu_replay,
  menu_continue,
  personalize_players,
  istruzioni,
  opzioni,
  game_rate,
  velocita_0,  ///< velocità(1..3) stand at velocita_0 + 1..3; there is no entry 0
  velocita_3 = velocita_0 + 3,
  menu_sounds,
  fruscio,
  menu_card_rustle_0,
  menu_card_rustle_1,
  menu_music,
  nomusic_0,
  all_0,
  menu_about,
  menu_help,
  esci,
  canzoni_0,  ///< canzoni(1..n) stand at canzoni_0 + 1 and on; the last group
};

/// Numbers of the overlay controls.
enum OverlayControl : ControlId {
  quadro = 1,
  TxtHelp,
  TxtItaliano,
  Text4,
  TxtPlayer_0,  ///< TxtPlayer(1..4) stand at TxtPlayer_0 + 1..4
  TxtPlayer_4 = TxtPlayer_0 + 4,
  Shape1_0,
  Shape1_1,
};

}  // namespace tombrello
