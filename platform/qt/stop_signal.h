#pragma once

#include <QSocketNotifier>
#include <csignal>
#include <functional>
#include <memory>

namespace tombrello::qt {

/// Requests to end the process (SIGTERM, SIGINT, SIGHUP), as an event like any other. Made
/// before any thread is started, so that all of them leave these signals to it.
class StopSignal {
 public:
  StopSignal();
  ~StopSignal();
  StopSignal(const StopSignal&) = delete;
  StopSignal& operator=(const StopSignal&) = delete;

  /// Needs the application object. A request that came earlier is reported too.
  void listen(std::function<void()> stop);

 private:
  void drain() const;

  sigset_t before_{};
  int descriptor_ = -1;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tombrello::qt
