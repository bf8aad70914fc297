#include "qt/stop_signal.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <system_error>

namespace tombrello::qt {
namespace {

constexpr long kPatience = 900'000'000;  // nanoseconds

// A handler is given nothing but a number: what it reaches must stand outside of all objects.
std::atomic<int> request_descriptor = -1;
std::atomic<timer_t> last_resort;
std::atomic<bool> requested = false;
static_assert(std::atomic<timer_t>::is_always_lock_free);

// Any thread may be the one that is interrupted.
void request(int) {
  const int error = errno;
  if (!requested.exchange(true)) {
    const itimerspec patience = {{0, 0}, {0, kPatience}};
    timer_settime(last_resort, 0, &patience, nullptr);
  }
  const std::uint64_t one = 1;
  [[maybe_unused]] const auto told = write(request_descriptor, &one, sizeof one);
  errno = error;
}

void end(int) {
  _exit(0);
}

// What the process was told to ignore, under nohup for one, stays ignored.
bool ignored(int number) {
  struct sigaction action {};
  return sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

timer_t make_timer() {
  sigevent event{};
  event.sigev_notify = SIGEV_SIGNAL;
  event.sigev_signo = SIGALRM;
  timer_t timer{};
  if (timer_create(CLOCK_MONOTONIC, &event, &timer) == 0) return timer;
  throw std::system_error(errno, std::generic_category(), "no timer");
}

}  // namespace

StopSignal::StopSignal()
    : descriptor_(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)), timer_(make_timer()) {
  request_descriptor = descriptor_;
  last_resort = timer_;
  requested = false;
  watch(SIGALRM, end);
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
    if (!ignored(number)) watch(number, request);
  }
}

StopSignal::~StopSignal() {
  notifier_.reset();
  for (const auto& [number, action] : before_) sigaction(number, &action, nullptr);
  timer_delete(timer_);
  close(descriptor_);
}

// A call that was under way goes on after the handler: a save is no shorter for it.
void StopSignal::watch(int number, void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  before_.emplace_back(number, action);
  sigaction(number, &action, &before_.back().second);
}

void StopSignal::listen(std::function<void()> stop) {
  notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [this, tell = std::move(stop)] {
                     std::uint64_t count = 0;
                     if (read(descriptor_, &count, sizeof count) == sizeof count) tell();
                   });
}

}  // namespace tombrello::qt
