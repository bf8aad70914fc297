#pragma once

#include <functional>
#include <memory>
#include <string>

#include "seam/media.h"
#include "windows/audio/media_box.h"

namespace tombrello::windows {

/// The sequencer. Used on the game's thread; its thread only posts that a play has ended.
class Sequencer : public MediaControl {
 public:
  struct Box : MediaBox {
    int number = 0;    ///< of the last command; a later one makes what came before void
    std::string file;  ///< what that command wants to hear; empty for silence
    int ended = 0;     ///< number of the last play that came to its end
    std::function<void()> wake;
  };

  /// `wake` is called from another thread and must only post; `take_end` is to follow from it.
  explicit Sequencer(std::function<void()> wake);

  void set_file_name(const std::string& name) override { file_name_ = name; }
  void command(Command command) override;
  void set_blocking(bool) override {}
  void set_opening_option(int) override {}
  void set_start_option(int) override {}

  /// True if the tune that was played last has come to its end and nobody was told yet.
  bool take_end();

  const std::shared_ptr<Box>& box() const { return box_; }
  /// What its thread does; files lie under `folder`.
  static void serve(Box& box, const std::wstring& folder);

 private:
  void want(const std::string& file);

  std::shared_ptr<Box> box_ = std::make_shared<Box>();
  std::string file_name_;
  std::string opened_;
};

}  // namespace tombrello::windows
