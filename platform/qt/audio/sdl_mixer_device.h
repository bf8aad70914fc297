#pragma once

#include <filesystem>
#include <memory>
#include <mutex>
#include <string>

struct Mix_Chunk;
struct _Mix_Music;

namespace tombrello::qt {

struct ChunkDeleter {
  void operator()(Mix_Chunk* chunk) const;
};
struct TuneDeleter {
  void operator()(_Mix_Music* tune) const;
};
using Chunk = std::unique_ptr<Mix_Chunk, ChunkDeleter>;
using Tune = std::unique_ptr<_Mix_Music, TuneDeleter>;  ///< stops when it goes

/// The computer's audio device and its mixer. Any thread may call it; opening may hang for as
/// long as an audio server likes, so none of the calls belongs on the game's thread.
class SdlMixerDevice {
 public:
  struct Release {
    void operator()(SdlMixerDevice* device) const { device->release(); }
  };
  /// The device stands open while anyone holds a lease, and rests otherwise: an open device costs
  /// processor time even in silence.
  using Lease = std::unique_ptr<SdlMixerDevice, Release>;

  SdlMixerDevice() = default;
  SdlMixerDevice(const SdlMixerDevice&) = delete;
  SdlMixerDevice& operator=(const SdlMixerDevice&) = delete;
  ~SdlMixerDevice();

  /// Null where there is no audio, which is found out once, or while a device that stood open
  /// can't be had.
  Lease lease();

  /// Nobody opens or closes the device as long as this is held: waves may be freed without a
  /// lease then.
  std::unique_lock<std::mutex> hold_still() { return std::unique_lock(mutex_); }

  /// For a thread that has called the device, at its end: what is kept for it is given back.
  static void leave_thread();

  // All calls below rely on a lease.

  /// Null if the file isn't a wave file that is fit to be played, of a few megabytes at most.
  Chunk load_wave(const std::filesystem::path& file);
  /// From its beginning, beside everything that sounds already.
  void play(Mix_Chunk& wave);

  /// A soundfont is installed. Without one no tune can be loaded.
  bool plays_tunes() const { return has_font_; }
  /// Null if the file isn't a MIDI file of at most a megabyte, or lasts no time.
  /// `seconds` becomes the time that it lasts.
  Tune load_tune(const std::filesystem::path& file, double& seconds);
  /// One tune plays at a time. False if it can't.
  bool play(_Mix_Music& tune);
  bool tune_playing();

 private:
  bool open();
  void release();

  std::mutex mutex_;
  int leases_ = 0;
  bool stood_open_ = false;
  bool failed_ = false;
  bool has_font_ = false;
};

}  // namespace tombrello::qt
