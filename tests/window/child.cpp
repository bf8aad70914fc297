#include "child.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace tombrello {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kPipeBytes = 1 << 20;  // room for all that is said while nobody listens

void set_variable(const std::string& setting) {
  const auto equals = setting.find('=');
  if (equals == std::string::npos) {
    unsetenv(setting.c_str());
  } else {
    setenv(setting.substr(0, equals).c_str(), setting.substr(equals + 1).c_str(), 1);
  }
}

[[noreturn]] void become(const std::vector<std::string>& words,
                         const std::vector<std::string>& environment) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  for (const auto& setting : environment) set_variable(setting);
  std::vector<char*> arguments;
  for (const auto& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  execvp(arguments[0], arguments.data());
  _exit(127);
}

}  // namespace

Child::Child(const std::vector<std::string>& words, const std::vector<std::string>& environment) {
  int pipes[3][2];
  for (auto& ends : pipes) {
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  }
  id_ = fork();
  if (id_ < 0) throw std::runtime_error("no process");
  if (id_ == 0) {
    dup2(pipes[0][0], 0);
    dup2(pipes[1][1], 1);
    dup2(pipes[2][1], 2);
    become(words, environment);
  }
  in_ = pipes[0][1];
  out_ = pipes[1][0];
  err_ = pipes[2][0];
  close(pipes[0][0]);
  close(pipes[1][1]);
  close(pipes[2][1]);
  fcntl(out_, F_SETPIPE_SZ, kPipeBytes);
  for (const int descriptor : {out_, err_}) fcntl(descriptor, F_SETFL, O_NONBLOCK);
}

Child::~Child() {
  send(SIGKILL);
  wait(std::chrono::seconds(5));
  for (const int descriptor : {in_, out_, err_}) {
    if (descriptor >= 0) close(descriptor);
  }
}

void Child::write(const std::string& text) {
  const auto written = ::write(in_, text.data(), text.size());
  if (written != static_cast<ssize_t>(text.size())) throw std::runtime_error("pipe is full");
  close(in_);
  in_ = -1;
}

void Child::send(int signal) const {
  if (!status_ && id_ > 0) kill(id_, signal);
}

// Answers whether anything came.
bool Child::take_in(int& descriptor, std::string& text) {
  char bytes[4096];
  ssize_t count = 0;
  bool any = false;
  while (descriptor >= 0 && (count = read(descriptor, bytes, sizeof bytes)) > 0) {
    text.append(bytes, static_cast<std::size_t>(count));
    any = true;
  }
  if (descriptor >= 0 && count == 0) {
    close(descriptor);
    descriptor = -1;
  }
  return any;
}

void Child::listen(std::chrono::milliseconds most) {
  pollfd watched[2] = {{out_, POLLIN, 0}, {err_, POLLIN, 0}};
  poll(watched, 2, static_cast<int>(most.count()));
  take_in(out_, out);
  take_in(err_, err);
}

std::optional<int> Child::wait(std::chrono::milliseconds most) {
  const auto end = Clock::now() + most;
  while (!status_) {
    int status = 0;
    if (waitpid(id_, &status, WNOHANG) == id_) {
      status_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
      break;
    }
    if (Clock::now() >= end) return std::nullopt;
    listen(std::chrono::milliseconds(5));
    if (out_ < 0 && err_ < 0) usleep(2000);
  }
  listen(std::chrono::milliseconds(0));
  return status_;
}

Outcome run(const std::vector<std::string>& words, const std::vector<std::string>& environment,
            const std::string& input) {
  Child child(words, environment);
  if (!input.empty()) child.write(input);
  const auto status = child.wait(std::chrono::seconds(30));
  if (!status) throw std::runtime_error(words[0] + " takes too long");
  return {*status, child.out, child.err};
}

}  // namespace tombrello
