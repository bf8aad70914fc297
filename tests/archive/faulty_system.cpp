// The calls of the system that a save makes, standing in front of the C library's own: the
// libraries of this program find these.

#include "faulty_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>

namespace tombrello::faults {
namespace {

bool armed = false;
int calls = 0;
Fault fault;

// True if the call that is just being made is to fail.
bool meets_fault() {
  if (!armed || ++calls != fault.call) return false;
  if (fault.kill) raise(SIGKILL);
  errno = fault.error;
  return fault.error != 0;
}

bool is_cut() {
  return armed && fault.cut && calls == fault.call;
}

}  // namespace

void arm(Fault next) {
  fault = next;
  calls = 0;
  armed = true;
}

int disarm() {
  armed = false;
  return calls;
}

template <class... Arguments>
auto call(long number, Arguments... arguments) {
  return meets_fault() ? -1 : syscall(number, arguments...);
}

}  // namespace tombrello::faults

using tombrello::faults::call;

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  return static_cast<int>(call(SYS_openat, AT_FDCWD, path, flags, mode));
}
ssize_t write(int file, const void* bytes, size_t size) {
  if (tombrello::faults::meets_fault()) return -1;
  return syscall(SYS_write, file, bytes, tombrello::faults::is_cut() && size > 1 ? 1 : size);
}
ssize_t read(int file, void* bytes, size_t size) {
  return call(SYS_read, file, bytes, size);
}
// What a flush couldn't keep is gone.
int fsync(int file) {
  if (!tombrello::faults::meets_fault()) return static_cast<int>(syscall(SYS_fsync, file));
  return static_cast<int>(syscall(SYS_ftruncate, file, 0) - 1);
}
int fchmod(int file, mode_t mode) noexcept {
  return static_cast<int>(call(SYS_fchmod, file, mode));
}
int close(int file) {
  const bool fails = tombrello::faults::meets_fault();
  const int error = errno;
  if (fails) syscall(SYS_ftruncate, file, 0);
  syscall(SYS_close, file);
  errno = error;
  return fails ? -1 : 0;
}
int rename(const char* from, const char* to) noexcept {
  return static_cast<int>(call(SYS_rename, from, to));
}
int unlink(const char* path) noexcept {
  return static_cast<int>(call(SYS_unlink, path));
}
int mkdir(const char* path, mode_t mode) noexcept {
  return static_cast<int>(call(SYS_mkdir, path, mode));
}
int faccessat(int folder, const char* path, int mode, int flags) noexcept {
  return static_cast<int>(call(SYS_faccessat2, folder, path, mode, flags));
}
int stat(const char* path, struct stat* status) noexcept {
  return static_cast<int>(call(SYS_stat, path, status));
}
int lstat(const char* path, struct stat* status) noexcept {
  return static_cast<int>(call(SYS_lstat, path, status));
}
int fstat(int file, struct stat* status) noexcept {
  return static_cast<int>(call(SYS_fstat, file, status));
}
}
