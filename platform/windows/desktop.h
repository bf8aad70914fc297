#pragma once

#include "windows/audio/audio.h"
#include "windows/desktop_window.h"
#include "windows/disk_archive.h"
#include "windows/strings.h"

namespace tombrello::windows {

/// Everything that the program asks of a desktop, made in the right order. One in a process.
class Desktop {
 public:
  explicit Desktop(painting::PictureSource pictures);

  DesktopWindow& window() { return window_; }
  Timer& timer() { return window_.timer(); }
  Archive& archive() { return archive_; }
  MediaControl& wave() { return audio_.wave(); }
  MediaControl& sequencer() { return audio_.sequencer(); }
  Beeper& beeper() { return audio_.beeper(); }
  void set_media_events(MediaEvents* events) { audio_.set_events(events); }

 private:
  DesktopWindow window_;
  DiskArchive archive_{program_folder(), user_folder()};
  devices::Audio audio_;
};

}  // namespace tombrello::windows
