#pragma once

#include <windows.h>

#include "seam/timer.h"

namespace tombrello::windows {

/// Its end is something that a thread can sleep for, and comes to the millisecond where the
/// system knows how.
class WaitableTimer : public Timer {
 public:
  WaitableTimer();
  WaitableTimer(const WaitableTimer&) = delete;
  WaitableTimer& operator=(const WaitableTimer&) = delete;
  ~WaitableTimer() override { CloseHandle(handle_); }

  void start(int milliseconds) override;
  /// Signalled once at the end; waiting for it takes the signal.
  HANDLE handle() const { return handle_; }

 private:
  HANDLE handle_;
};

}  // namespace tombrello::windows
