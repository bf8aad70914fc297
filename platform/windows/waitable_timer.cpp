#include "windows/waitable_timer.h"

namespace tombrello::windows {
namespace {

constexpr DWORD kToTheMillisecond = 2;  // CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, in newer headers

}  // namespace

WaitableTimer::WaitableTimer()
    : handle_(CreateWaitableTimerExW(nullptr, nullptr, kToTheMillisecond, TIMER_ALL_ACCESS)) {
  if (handle_ == nullptr) handle_ = CreateWaitableTimerExW(nullptr, nullptr, 0, TIMER_ALL_ACCESS);
}

void WaitableTimer::start(int milliseconds) {
  LARGE_INTEGER from_now;
  from_now.QuadPart = -10000LL * milliseconds;
  SetWaitableTimer(handle_, &from_now, 0, nullptr, nullptr, FALSE);
}

}  // namespace tombrello::windows
