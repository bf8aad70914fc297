#pragma once

#include <QApplication>

#include "devices/audio.h"
#include "qt/desktop_timer.h"
#include "qt/desktop_window.h"
#include "qt/disk_archive.h"
#include "qt/icon.h"
#include "qt/stop_signal.h"

namespace tombrello::qt {

/// As `Capital`, from Qt's tables of letters.
inline char32_t capital(char32_t letter) {
  return QChar::toUpper(letter);
}

/// Everything that the program asks of a desktop, made in the right order. One in a process,
/// made before any thread is started:
///
///     int main(int argc, char** argv) {
///       Desktop desktop(argc, argv, draw_picture, draw_icon);
///       Program program({desktop.window(), desktop.timer(), ...});
///       desktop.set_media_events(&program);
///       program.run();
///     }
///
/// Where no screen can be reached, the constructor says so in one line on standard error and
/// ends the process with status 1.
class Desktop {
 public:
  /// `pictures` answers the vectors of any picture; `icon` the program's at
  /// any number of pixels.
  Desktop(int& argc, char** argv, painting::PictureSource pictures, IconSource icon);

  Window& window() { return window_; }
  Timer& timer() { return timer_; }
  Archive& archive() { return archive_; }
  MediaControl& wave() { return audio_.wave(); }
  MediaControl& sequencer() { return audio_.sequencer(); }
  Beeper& beeper() { return audio_.beeper(); }
  void set_media_events(MediaEvents* events) { audio_.set_events(events); }

 private:
  /// Qt ends a process without a screen by a core dump; this one goes quietly.
  class Application : public QApplication {
   public:
    Application(int& argc, char** argv);
  };

  void wake_for_audio();

  StopSignal stop_signal_;
  QtMessageHandler messages_;
  Application application_;
  DesktopWindow window_;
  DesktopTimer timer_;
  DiskArchive archive_;
  devices::Audio audio_;
};

}  // namespace tombrello::qt
