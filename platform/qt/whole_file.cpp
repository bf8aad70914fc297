#include "qt/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <string_view>

namespace tombrello::qt {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSuffix = ".new";

Trouble trouble_of(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return Trouble::full;
    case EACCES:
    case EPERM:
    case EROFS:
      return Trouble::refused;
    default:
      return Trouble::broken;
  }
}

// All of these answer as system calls do: true, or false with `errno` set.

bool write_all(int file, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = write(file, content.data(), content.size());
    if (written <= 0) return false;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool set_rights(int file, const fs::path& old) {
  struct stat fresh {};
  struct stat before {};
  if (fstat(file, &fresh) != 0) return false;
  const mode_t rights = stat(old.c_str(), &before) == 0 ? before.st_mode : fresh.st_mode;
  const mode_t wanted = (rights & 0777) | S_IRUSR | S_IWUSR;
  return wanted == (fresh.st_mode & 0777) || fchmod(file, wanted) == 0;
}

// A few file systems have no notion of it.
bool flush(int file) {
  return fsync(file) == 0 || errno == EINVAL;
}

bool fill(int file, const fs::path& old, std::string_view content) {
  const bool filled = set_rights(file, old) && write_all(file, content) && flush(file);
  const int error = errno;
  if (close(file) != 0) return false;
  errno = error;
  return filled;
}

bool write_and_rename(const fs::path& fresh, const fs::path& target, std::string_view content) {
  const int file = open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (file < 0) return false;
  if (fill(file, target, content) && rename(fresh.c_str(), target.c_str()) == 0) return true;
  const int error = errno;
  unlink(fresh.c_str());
  errno = error;
  return false;
}

// If another game is just saving there, its save fails and says so.
void remove_leftovers(const fs::path& target) {
  const std::string start = target.filename().string() + kSuffix;
  std::error_code error;
  for (fs::directory_iterator entry(target.parent_path(), error), end; !error && entry != end;
       entry.increment(error)) {
    if (entry->path().filename().string().starts_with(start)) unlink(entry->path().c_str());
  }
}

// Nothing for a link that leads nowhere.
std::optional<fs::path> behind_links(const fs::path& place) {
  std::error_code error;
  if (!fs::is_symlink(fs::symlink_status(place, error))) return place;
  fs::path target = fs::canonical(place, error);
  return error ? std::nullopt : std::optional(std::move(target));
}

}  // namespace

Trouble put_whole(const fs::path& place, const std::string& content) {
  const auto target = behind_links(place);
  if (!target) return Trouble::refused;
  fs::path fresh = *target;
  fresh += kSuffix + std::to_string(getpid());
  unlink(fresh.c_str());  // of a process that had our number before
  if (!write_and_rename(fresh, *target, content)) return trouble_of(errno);
  remove_leftovers(*target);
  return Trouble::none;
}

}  // namespace tombrello::qt
