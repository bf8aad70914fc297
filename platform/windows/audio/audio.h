#pragma once

#include <functional>
#include <string>

#include "windows/audio/sequencer.h"
#include "windows/audio/wave.h"

namespace tombrello::windows {

/// The sound of the system: a wave device with the beep, and a sequencer, each with a thread of
/// its own behind it, so that no command ever waits for a device. Used on the game's thread.
class Audio {
 public:
  /// Files are found under `folder`. `wake` comes from another thread and must only post; see
  /// that `deliver` is called soon after.
  Audio(std::wstring folder, std::function<void()> wake);
  Audio(const Audio&) = delete;
  Audio& operator=(const Audio&) = delete;
  /// Everything falls silent. Takes half a second at most, also if a device hangs.
  ~Audio();

  Wave& wave() { return wave_; }
  Sequencer& sequencer() { return sequencer_; }

  /// Who hears of the natural end of a tune; null for nobody.
  void set_events(MediaEvents* events) { events_ = events; }
  /// Carries out what was told before. To be called once the window has been painted.
  void start();
  /// Tells the end of a tune to the events.
  void deliver();

 private:
  std::wstring folder_;
  Wave wave_;
  Sequencer sequencer_;
  MediaEvents* events_ = nullptr;
  bool started_ = false;
};

}  // namespace tombrello::windows
