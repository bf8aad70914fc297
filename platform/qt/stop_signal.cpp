#include "qt/stop_signal.h"

#include <pthread.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <utility>

namespace tombrello::qt {
namespace {

// What the process was told to ignore, under nohup for one, stays ignored.
bool ignored(int number) {
  struct sigaction action {};
  return sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}  // namespace

StopSignal::StopSignal() {
  sigset_t watched;
  sigemptyset(&watched);
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
    if (!ignored(number)) sigaddset(&watched, number);
  }
  pthread_sigmask(SIG_BLOCK, &watched, &before_);
  descriptor_ = signalfd(-1, &watched, SFD_NONBLOCK | SFD_CLOEXEC);
  if (descriptor_ < 0) pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

StopSignal::~StopSignal() {
  notifier_.reset();
  if (descriptor_ < 0) return;
  drain();
  close(descriptor_);
  pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

void StopSignal::listen(std::function<void()> stop) {
  if (descriptor_ < 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [this, tell = std::move(stop)] {
                     drain();
                     tell();
                   });
}

void StopSignal::drain() const {
  signalfd_siginfo request;
  while (read(descriptor_, &request, sizeof request) == sizeof request) continue;
}

}  // namespace tombrello::qt
