#pragma once

#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "devices/box.h"
#include "seam/beeper.h"
#include "seam/media.h"

namespace tombrello::devices {

/// What a system plays waves on. Belongs to one thread; any call may take as long as the device
/// likes.
class WavePlayer {
 public:
  virtual ~WavePlayer() = default;
  /// The device is had, at first or after a rest. False if it can't be, now.
  virtual bool wake() { return true; }
  /// Nothing has been asked for a while.
  virtual void rest() {}
  /// How many takes of a sound there are to be played; those that weren't asked for before are
  /// loaded now.
  virtual std::size_t takes(const std::string& file) = 0;
  /// At once, from its beginning, beside what sounds already.
  virtual void play(const std::string& file, std::size_t take) = 0;
};

/// The wave device, and the beep beside it: each play begins at once, from the beginning, and
/// lets what sounds before it sound on. A sound may lie there in several takes, which take turns
/// by chance. Used on the game's thread.
class Wave : public MediaControl, public Beeper {
 public:
  struct Job {
    std::string file;
    bool play;
    bool operator==(const Job&) const = default;
  };
  /// `heard`: it is loaded, and there is a device. `missing`: it can't be, or that isn't known yet
  /// of the first one that was asked for.
  enum class Beep { untried, heard, missing };
  struct Box : devices::Box {
    std::vector<Job> jobs;  ///< each at most once, so that they stay few if nobody takes them
    Beep beep = Beep::untried;
    bool beep_lost = false;   ///< one that was asked for couldn't be heard
    std::minstd_rand chance;  ///< the thread's own: which take of a sound is heard

    bool asked() const override;
    void give_up() override { miss(jobs); }
    void miss(const std::vector<Job>& missed);  ///< under the lock: the game hears of a beep
  };

  /// `wake` is called from another thread and must only post; `deliver` is to follow from it.
  /// `system_beep` stands in where nothing can be played; from `seed` comes the order of takes.
  Wave(std::function<void()> wake, std::function<void()> system_beep, unsigned seed);

  void set_file_name(const std::string& name) override { file_name_ = name; }
  void command(Command command) override;
  void set_blocking(bool) override {}
  void set_opening_option(int) override {}
  void set_start_option(int) override {}
  void beep() override;
  /// The system's beep for one that couldn't be heard.
  void deliver();

  const std::shared_ptr<Box>& box() const { return box_; }
  /// What its thread does.
  static void serve(Box& box, WavePlayer& player);

 private:
  void post(Job job);

  std::shared_ptr<Box> box_ = std::make_shared<Box>();
  std::function<void()> system_beep_;
  std::string file_name_;
  std::string opened_;
};

}  // namespace tombrello::devices
