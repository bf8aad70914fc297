#pragma once

#include <string>
#include <utility>
#include <vector>

#include "seam/beeper.h"
#include "seam/media.h"

namespace tombrello {

/// A device that plays nothing and writes down, in words, what it is told.
class SilentMedia : public MediaControl {
 public:
  std::vector<std::string> log;
  std::string missing;  ///< the package that it says it lacks

  /// What has been written down since the last call.
  std::vector<std::string> take() { return std::exchange(log, {}); }

  std::string missing_package() const override { return missing; }
  void set_file_name(const std::string& name) override { log.push_back("file " + name); }
  void command(Command command) override {
    static constexpr const char* words[] = {"open", "close", "play"};
    log.push_back(words[static_cast<int>(command)]);
  }
  void set_blocking(bool blocking) override {
    log.push_back(blocking ? "blocking" : "not blocking");
  }
  void set_opening_option(int option) override {
    log.push_back("opening option " + std::to_string(option));
  }
  void set_start_option(int option) override {
    log.push_back("start option " + std::to_string(option));
  }
};

class SilentBeeper : public Beeper {
 public:
  int beeps = 0;
  void beep() override { ++beeps; }
};

}  // namespace tombrello
