#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "seam/archive.h"
#include "seam/media.h"
#include "seam/window.h"

namespace tombrello {

/// The tunes of the folder `music`: one played once, all in turn, or none. The check of the
/// entry for all of them is what means that they follow each other.
class Music : public MediaEvents {
 public:
  /// The tunes that the menu can hold: their number is kept in eight bits, and 101 is a mark.
  static constexpr int kMostTunes = 100;

  /// Numbers of the menu entries; canzoni(1..n) stand at `canzoni_0` + 1 and on.
  struct Entries {
    EntryId menu;
    EntryId nomusic;
    EntryId all;
    EntryId canzoni_0;
  };

  /// `brano` is the music option of the settings; `Set_Write` stores them. All references
  /// outlive this.
  Music(MediaControl& MMC1, Window& window, std::uint8_t& brano, Entries entries,
        std::function<void()> Set_Write);

  /// At load, once the menu stands: puts an entry for each tune under it.
  void scan(Archive& archive);
  /// At load, after `scan`: checks what `brano` says, and starts all tunes if it says so.
  void start();
  void close();  ///< on the way out

  int tunes() const { return static_cast<int>(canzoni_.size()); }

  void canzoni_Click(int index);  ///< 1..`tunes()`
  void all_Click();
  void nomusic_Click();
  void MMC1_Done(int code);
  /// In sequential mode a tune that can't be played gives way to the next one, until none of
  /// them can be.
  void media_done(int code) override;

 private:
  void check_tune(int index, bool checked);
  void uncheck_tunes();
  void open(int index);

  MediaControl& MMC1_;
  Window& window_;
  std::uint8_t& brano_;
  Entries entries_;
  std::function<void()> Set_Write_;
  std::vector<std::string> canzoni_;  ///< file names without their extension
  int failures_ = 0;                  ///< tunes in a row that couldn't be played
};

}  // namespace tombrello
