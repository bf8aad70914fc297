#pragma once

#include <QSocketNotifier>
#include <csignal>
#include <ctime>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tombrello::qt {

/// Requests to end the process (SIGTERM, SIGINT, SIGHUP), as an event like any other. One in a
/// process at a time.
///
/// Where the process hasn't ended 900 ms after the first request, because its thread is held up
/// by a screen, another program's clipboard or a bus, it ends all the same, with status 0: a file
/// is only ever replaced whole, and nothing is saved on leaving.
class StopSignal {
 public:
  StopSignal();
  ~StopSignal();
  StopSignal(const StopSignal&) = delete;
  StopSignal& operator=(const StopSignal&) = delete;

  /// Needs the application object. A request that came earlier is reported too.
  void listen(std::function<void()> stop);

 private:
  void watch(int number, void (*handler)(int));

  int descriptor_ = -1;
  timer_t timer_{};
  std::vector<std::pair<int, struct sigaction>> before_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tombrello::qt
