#pragma once

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <random>
#include <string>
#include <vector>

#include "qt/audio/sdl_mixer_device.h"
#include "seam/beeper.h"
#include "seam/media.h"

namespace tombrello::qt {

/// How the game's thread and a thread that plays meet. Both own it, and so it outlives a thread
/// that an audio server keeps from ending.
struct MediaBox {
  std::mutex mutex;
  std::condition_variable changed;
  bool leaving = false;
  bool finished = false;  ///< the thread takes nothing any more

  void ask_to_leave();
  void await_finish(std::chrono::steady_clock::time_point latest);
  void finish();  ///< said by the thread itself, at its end
};

/// The wave device, and the beep beside it: each play begins at once, from the beginning, and
/// lets what sounds before it sound on. A sound may lie there in several takes, which take turns
/// by chance. Used on the game's thread.
class SdlWave : public MediaControl, public Beeper {
 public:
  struct Job {
    std::string file;
    bool play;
    bool operator==(const Job&) const = default;
  };
  struct Box : MediaBox {
    std::vector<Job> jobs;    ///< each at most once, so that they stay few if nobody takes them
    bool beeps = false;       ///< the beep is loaded, and there is a device
    std::minstd_rand chance;  ///< the thread's own: which take of a sound is heard
  };

  /// `system_beep` stands in where nothing can be played; from `seed` comes the order of takes.
  SdlWave(std::function<void()> system_beep, unsigned seed);

  void set_file_name(const std::string& name) override { file_name_ = name; }
  void command(Command command) override;
  void set_blocking(bool) override {}
  void set_opening_option(int) override {}
  void set_start_option(int) override {}
  void beep() override;

  const std::shared_ptr<Box>& box() const { return box_; }
  /// What its thread does.
  static void serve(Box& box, SdlMixerDevice& device, const std::filesystem::path& folder);

 private:
  void post(Job job);

  std::shared_ptr<Box> box_ = std::make_shared<Box>();
  std::function<void()> system_beep_;
  std::string file_name_;
  std::string opened_;
};

/// The sequencer. Used on the game's thread; its thread only posts that a play has ended.
class SdlSequencer : public MediaControl {
 public:
  struct Box : MediaBox {
    int number = 0;    ///< of the last command; a later one makes what came before void
    std::string file;  ///< what that command wants to hear; empty for silence
    int done = 0;      ///< number of the last play that came to its end, or couldn't begin
    int code = 0;      ///< how that went, as `MediaEvents` has it
    std::function<void()> wake;
  };

  /// `wake` is called from another thread and must only post; `deliver` is to follow from it.
  explicit SdlSequencer(std::function<void()> wake);

  void set_file_name(const std::string& name) override { file_name_ = name; }
  void command(Command command) override;
  void set_blocking(bool) override {}
  void set_opening_option(int) override {}
  void set_start_option(int) override {}

  std::string missing_package() const override;

  /// How the tune that was played last is done, as `MediaEvents` has it; 0 while it isn't, or
  /// once that was told.
  int take_done();

  const std::shared_ptr<Box>& box() const { return box_; }
  /// What its thread does.
  static void serve(Box& box, SdlMixerDevice& device, const std::filesystem::path& folder);

 private:
  void want(const std::string& file);

  std::shared_ptr<Box> box_ = std::make_shared<Box>();
  std::string file_name_;
  std::string opened_;
};

}  // namespace tombrello::qt
