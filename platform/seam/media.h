#pragma once

#include <string>

namespace tombrello {

/// One media device: a wave device or a sequencer. It is given a file name and commands, and
/// plays by itself. A command that fails does nothing; of a play alone `MediaEvents` hears it.
class MediaControl {
 public:
  enum class Command { open, close, play };

  virtual ~MediaControl() = default;

  /// The file that the next `open` opens, relative to the program's folder, '/' between names.
  virtual void set_file_name(const std::string& name) = 0;
  /// `play` returns at once; it starts from the beginning, whatever sounded before.
  virtual void command(Command command) = 0;
  /// How the device is to open and play. One that always plays in the background, from the
  /// start, ignores these.
  virtual void set_blocking(bool blocking) = 0;
  virtual void set_opening_option(int option) = 0;
  virtual void set_start_option(int option) = 0;
  /// The name of the package that the system would have to install before this device is heard;
  /// empty if none is missing, or nobody knows. Looks at a few files, so not to be asked often.
  virtual std::string missing_package() const { return {}; }
};

/// Where a device reports. Called from inside `Window::serve_events`, on the game's thread.
class MediaEvents {
 public:
  static constexpr int kEnded = 1;   ///< what was played came to its natural end
  static constexpr int kFailed = 8;  ///< there is a device, and it can't play this file

  virtual ~MediaEvents() = default;
  /// `code` is one of those above; others mean nothing.
  virtual void media_done(int code) = 0;
};

}  // namespace tombrello
