#pragma once

#ifdef __SANITIZE_ADDRESS__
#include <chrono>
#include <filesystem>
#include <iterator>
#include <thread>

namespace tombrello {

/// Who waits for a thread waits for its last word, not for what it lets go of after that. This
/// leaves after all that was made in `main`, and before leaks are looked for.
inline const struct LastThreads {
  ~LastThreads() {
    const std::filesystem::directory_iterator none;
    for (int patience = 2000; patience > 0; --patience) {
      const std::filesystem::directory_iterator threads("/proc/self/task");
      if (std::distance(threads, none) == 1) return;
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  }
} kLastThreads;

}  // namespace tombrello
#endif
