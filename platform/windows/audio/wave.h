#pragma once

#include <memory>
#include <string>
#include <vector>

#include "seam/beeper.h"
#include "seam/media.h"
#include "windows/audio/media_box.h"

namespace tombrello::windows {

/// The wave device, and the beep beside it: each play begins at once, from the beginning, and
/// lets what sounds before it sound on. Used on the game's thread.
class Wave : public MediaControl, public Beeper {
 public:
  struct Job {
    std::string file;
    bool play;
    bool operator==(const Job&) const = default;
  };
  struct Box : MediaBox {
    std::vector<Job> jobs;  ///< each at most once, so that they stay few if nobody takes them
    bool beeps = false;     ///< the beep can be played
  };

  void set_file_name(const std::string& name) override { file_name_ = name; }
  void command(Command command) override;
  void set_blocking(bool) override {}
  void set_opening_option(int) override {}
  void set_start_option(int) override {}
  void beep() override;

  const std::shared_ptr<Box>& box() const { return box_; }
  /// What its thread does; files lie under `folder`.
  static void serve(Box& box, const std::wstring& folder);

 private:
  void post(Job job);

  std::shared_ptr<Box> box_ = std::make_shared<Box>();
  std::string file_name_;
  std::string opened_;
};

}  // namespace tombrello::windows
