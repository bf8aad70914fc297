#pragma once

namespace tombrello {

/// A one-shot timer. Its end comes as `WindowEvents::timer_ticked`, from inside
/// `Window::serve_events`. Starting it again forgets the period that was running.
class Timer {
 public:
  virtual ~Timer() = default;
  virtual void start(int milliseconds) = 0;  ///< 0 or more
};

}  // namespace tombrello
