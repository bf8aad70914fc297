#pragma once

#include <string>

#include "cards/state.h"
#include "seam/archive.h"

namespace tombrello {

/// The settings file, which holds the options, the names and the last deal, and the file of
/// players.
class Settings {
 public:
  Settings(State& state, Archive& archive) : s_(state), archive_(archive) {}

  /// Fills the state. Whatever the file holds, every field ends within its range: one that is
  /// missing or out of range takes its first-run value, and a deck that isn't whole is dropped.
  void Set_Read();
  /// Replaces the whole file with the current values.
  void Set_Write();
  /// What to tell the player when the last of these writes was not kept; otherwise nothing.
  std::string complaint() const;
  /// Replaces the file of players; the settings file keeps its names until it is next written.
  void Registra_Players();

 private:
  State& s_;
  Archive& archive_;
};

}  // namespace tombrello
