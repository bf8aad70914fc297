#pragma once

#include <QTimer>

#include "platform/timer.h"
#include "platform/window.h"

namespace tombrello {

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

}  // namespace tombrello
