#pragma once

#include <QTimer>

#include "seam/timer.h"
#include "seam/window.h"

namespace tombrello::qt {

/// Qt's timer at a millisecond's precision.
class DesktopTimer : public Timer {
 public:
  explicit DesktopTimer(WindowEvents& events) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [&events] { events.timer_ticked(); });
  }
  void start(int milliseconds) override { timer_.start(milliseconds); }

 private:
  QTimer timer_;
};

}  // namespace tombrello::qt
