#pragma once

#include <functional>
#include <memory>
#include <string>

#include "devices/sequencer.h"
#include "devices/wave.h"

namespace tombrello::devices {

/// What a system brings. The players are made on threads of their own, when something is to be
/// heard for the first time, and end there; null where there are none.
struct System {
  std::function<std::unique_ptr<WavePlayer>()> waves;
  std::function<std::unique_ptr<TunePlayer>()> tunes;
  std::function<void()> beep;                  ///< called on the game's thread; may be null
  std::string (*missing_package)() = nullptr;  ///< as `MediaControl`; null if none ever is
};

/// A wave device with the beep, and a sequencer, each with a thread of its own behind it, so that
/// no command ever waits for a file or a device. Used on the game's thread.
class Audio {
 public:
  /// `wake` comes from another thread and must only post; see that `deliver` is called soon after.
  /// `seed` is for what sounds take by chance.
  Audio(System system, std::function<void()> wake, unsigned seed);
  Audio(const Audio&) = delete;
  Audio& operator=(const Audio&) = delete;
  /// Everything falls silent. Takes half a second at most, also if a device hangs.
  ~Audio();

  Wave& wave() { return wave_; }
  Sequencer& sequencer() { return sequencer_; }
  Beeper& beeper() { return wave_; }

  /// Who hears that a tune has ended or can't be played; null for nobody.
  void set_events(MediaEvents* events) { events_ = events; }

  /// Carries out what was told before. To be called once the window has been painted; calls after
  /// the first do nothing.
  void start();

  /// Tells the events how a tune is done, if one is, and beeps for a beep that was lost.
  void deliver();

 private:
  System system_;
  Wave wave_;
  Sequencer sequencer_;
  MediaEvents* events_ = nullptr;
  bool started_ = false;
};

}  // namespace tombrello::devices
