#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace tombrello::devices {

/// How the game's thread and a thread that plays meet. Both own it, and so it outlives a thread
/// that a device keeps from ending.
struct Box {
  std::mutex mutex;
  std::condition_variable changed;
  bool leaving = false;
  bool finished = false;  ///< the thread takes nothing any more

  void ask_to_leave() {
    const std::lock_guard lock(mutex);
    leaving = true;
    changed.notify_all();
  }
  void await_finish(std::chrono::steady_clock::time_point latest) {
    std::unique_lock lock(mutex);
    changed.wait_until(lock, latest, [this] { return finished; });
  }
  void finish() {  ///< said by the thread itself, at its end
    const std::lock_guard lock(mutex);
    finished = true;
    changed.notify_all();
  }
};

}  // namespace tombrello::devices
