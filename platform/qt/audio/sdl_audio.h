#pragma once

#include <filesystem>
#include <functional>

#include "qt/audio/sdl_media.h"

namespace tombrello::qt {

/// The sound of the desktop: a wave device with the beep, and a sequencer, each with a thread of
/// its own behind it, so that no command ever waits for a file or an audio server. Used on the
/// game's thread.
class SdlAudio {
 public:
  /// Files are found under `folder`. `wake` comes from another thread and must only post; see
  /// that `deliver` is called soon after. `system_beep` is what the game's thread calls for a
  /// beep while, or where, there is no audio. `seed` is for what sounds take by chance.
  SdlAudio(std::filesystem::path folder, std::function<void()> wake,
           std::function<void()> system_beep, unsigned seed);
  SdlAudio(const SdlAudio&) = delete;
  SdlAudio& operator=(const SdlAudio&) = delete;
  /// Everything falls silent. Takes half a second at most, also if the audio server hangs.
  ~SdlAudio();

  SdlWave& wave() { return wave_; }
  SdlSequencer& sequencer() { return sequencer_; }
  Beeper& beeper() { return wave_; }

  /// Who hears that a tune has ended or can't be played; null for nobody.
  void set_events(MediaEvents* events) { events_ = events; }

  /// Opens the audio device and carries out what was told before. To be called once the window
  /// has been painted; calls after the first do nothing.
  void start();

  /// Tells the events how a tune is done, if one is.
  void deliver();

 private:
  std::filesystem::path folder_;
  SdlWave wave_;
  SdlSequencer sequencer_;
  MediaEvents* events_ = nullptr;
  bool started_ = false;
};

}  // namespace tombrello::qt
