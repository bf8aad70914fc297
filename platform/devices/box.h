#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace tombrello::devices {

/// How the game's thread and a thread that plays meet. Both own it, and so it outlives a thread
/// that a device keeps from ending.
struct Box {
  Box() = default;
  Box(const Box&) = delete;
  Box& operator=(const Box&) = delete;
  virtual ~Box() = default;

  /// Something is to be heard. Asked under the lock.
  virtual bool asked() const = 0;
  /// What is asked for still, nobody takes any more. Told under the lock.
  virtual void give_up() {}

  std::mutex mutex;
  std::condition_variable changed;
  std::function<void()> wake;  ///< tells the game's thread that there is something to deliver
  bool leaving = false;
  bool finished = false;  ///< the thread takes nothing any more

  /// Nobody is woken any more.
  void ask_to_leave() {
    const std::lock_guard lock(mutex);
    wake = nullptr;
    leaving = true;
    changed.notify_all();
  }
  /// False if the game leaves first.
  bool await_call() {
    std::unique_lock lock(mutex);
    changed.wait(lock, [this] { return leaving || asked(); });
    return !leaving;
  }
  void await_finish(std::chrono::steady_clock::time_point latest) {
    std::unique_lock lock(mutex);
    changed.wait_until(lock, latest, [this] { return finished; });
  }
  void finish() {  ///< said by the thread itself, at its end
    const std::lock_guard lock(mutex);
    finished = true;
    give_up();
    changed.notify_all();
  }
};

}  // namespace tombrello::devices
