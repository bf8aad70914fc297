#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace tombrello {

/// A process of its own, its standard output and error kept here. It dies with this object, and
/// with the test program, however that ends.
class Child {
 public:
  /// `environment`: "NAME=value", or "NAME" to take it away. The first word is looked up in PATH.
  Child(const std::vector<std::string>& words, const std::vector<std::string>& environment);
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;
  ~Child();

  void write(const std::string& text);  ///< to its standard input, which is closed then
  void send(int signal) const;
  /// Takes in what it has written, for at most so long, or until it writes or ends.
  void listen(std::chrono::milliseconds most);
  /// Waits for its end: its exit status, or 128 plus the signal that ended it; nothing if it
  /// still runs after so long.
  std::optional<int> wait(std::chrono::milliseconds most);

  std::string out;
  std::string err;

 private:
  bool take_in(int& descriptor, std::string& text);

  pid_t id_ = -1;
  int in_ = -1;
  int out_ = -1;
  int err_ = -1;
  std::optional<int> status_;
};

struct Outcome {
  int status = 0;
  std::string out;
  std::string err;
};

/// Runs a short command to its end; throws if it takes longer than half a minute.
Outcome run(const std::vector<std::string>& words, const std::vector<std::string>& environment,
            const std::string& input = {});

}  // namespace tombrello
