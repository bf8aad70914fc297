#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "devices/box.h"
#include "seam/media.h"

namespace tombrello::devices {

/// What a system plays tunes on, one at a time. Belongs to one thread; any call may take as long as
/// the device likes.
class TunePlayer {
 public:
  virtual ~TunePlayer() = default;
  /// From the beginning. Answers the seconds that it lasts, or nothing if it can't be played.
  virtual std::optional<double> play(const std::string& file) = 0;
  /// There is something to play on: if `play` failed, that was the file's fault.
  virtual bool has_device() = 0;
  virtual bool playing() = 0;
  virtual void stop() = 0;
};

/// The sequencer. Used on the game's thread; its thread only posts that a play has ended.
class Sequencer : public MediaControl {
 public:
  struct Box : devices::Box {
    int number = 0;    ///< of the last command; a later one makes what came before void
    std::string file;  ///< what that command wants to hear; empty for silence
    int done = 0;      ///< number of the last play that came to its end, or couldn't begin
    int code = 0;      ///< how that went, as `MediaEvents` has it

    bool asked() const override { return !file.empty(); }
  };

  /// `wake` is called from another thread and must only post; `take_done` is to follow from it.
  /// `missing` answers as `missing_package`; null if none ever is.
  Sequencer(std::function<void()> wake, std::string (*missing)());

  void set_file_name(const std::string& name) override { file_name_ = name; }
  void command(Command command) override;
  void set_blocking(bool) override {}
  void set_opening_option(int) override {}
  void set_start_option(int) override {}
  std::string missing_package() const override {
    return missing_package_ == nullptr ? "" : missing_package_();
  }

  /// How the tune that was played last is done, as `MediaEvents` has it; 0 while it isn't, or
  /// once that was told.
  int take_done();

  const std::shared_ptr<Box>& box() const { return box_; }
  /// What its thread does.
  static void serve(Box& box, TunePlayer& player);

 private:
  void want(const std::string& file);

  std::shared_ptr<Box> box_ = std::make_shared<Box>();
  std::string (*missing_package_)();
  std::string file_name_;
  std::string opened_;
};

}  // namespace tombrello::devices
