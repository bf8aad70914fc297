#include "qt/disk_archive.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <utility>

#include "qt/whole_file.h"

namespace tombrello::qt {
namespace {

namespace fs = std::filesystem;

// Plain files only: opening a pipe or a device could wait for ever.
std::optional<std::string> read_plain(const fs::path& path, std::size_t most) {
  std::error_code error;
  if (!fs::is_regular_file(path, error)) return std::nullopt;
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return std::nullopt;
  std::string content;
  std::array<char, 65536> part{};
  ssize_t count = 1;
  while (count > 0 && content.size() < most) {
    count = ::read(file, part.data(), std::min(part.size(), most - content.size()));
    if (count > 0) content.append(part.data(), static_cast<std::size_t>(count));
  }
  close(file);
  return count < 0 ? std::nullopt : std::optional(std::move(content));
}

bool may(const fs::path& path, int mode) {
  return faccessat(AT_FDCWD, path.c_str(), mode, AT_EACCESS) == 0;
}

// A folder that can be written, where nothing, or a file of ours, stands in the file's place.
bool can_keep(const fs::path& path) {
  std::error_code error;
  if (!fs::is_directory(path.parent_path(), error) || !may(path.parent_path(), W_OK | X_OK)) {
    return false;
  }
  if (fs::symlink_status(path, error).type() == fs::file_type::not_found) return true;
  return fs::is_regular_file(path, error) && may(path, R_OK | W_OK);
}

bool is_newer(const fs::path& path, const fs::path& other) {
  std::error_code error;
  const auto written = fs::last_write_time(path, error);
  if (error) return false;
  const auto before = fs::last_write_time(other, error);
  return !error && written > before;
}

}  // namespace

DiskArchive::DiskArchive(fs::path program_folder, fs::path user_folder, Keep keep)
    : program_folder_(std::move(program_folder)),
      user_folder_(std::move(user_folder)),
      keep_(keep) {}

bool DiskArchive::keeps_beside(const fs::path& path) const {
  return keep_ == Keep::beside_program && can_keep(path);
}

std::optional<std::string> DiskArchive::read(const std::string& name, std::size_t most) {
  const fs::path beside = program_folder_ / name;
  const fs::path own = user_folder_ / name;
  if (!keeps_beside(beside) || is_newer(own, beside)) {
    if (auto content = read_plain(own, most)) return content;
  }
  return read_plain(beside, most);
}

Trouble DiskArchive::put_beside(const std::string& name, const std::string& content) const {
  const fs::path path = program_folder_ / name;
  return keeps_beside(path) ? put_whole(path, content) : Trouble::refused;
}

Trouble DiskArchive::put_with_user(const std::string& name, const std::string& content) const {
  const fs::path path = user_folder_ / name;
  std::error_code error;
  fs::create_directories(path.parent_path(), error);
  return put_whole(path, content);
}

// Of two troubles the program's folder's is told; but where that is only closed to us, as an
// installed program's is, the user's folder's.
bool DiskArchive::replace(const std::string& name, const std::string& content) {
  trouble_ = put_beside(name, content);
  if (trouble_ == Trouble::none) return true;
  const Trouble with_user = put_with_user(name, content);
  if (with_user == Trouble::none || trouble_ == Trouble::refused) trouble_ = with_user;
  return trouble_ == Trouble::none;
}

// Of a folder with any number of files no more names are kept than are asked for.
std::vector<std::string> DiskArchive::list(const std::string& folder, std::size_t most) {
  std::vector<std::string> names;  // a heap, the last name in front
  std::error_code error;
  for (fs::directory_iterator entry(program_folder_ / folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::string name = entry->path().filename().string();
    std::error_code fault;
    if (name.starts_with('.') || !entry->is_regular_file(fault)) continue;
    names.push_back(std::move(name));
    std::push_heap(names.begin(), names.end());
    if (names.size() <= most) continue;
    std::pop_heap(names.begin(), names.end());
    names.pop_back();
  }
  std::sort_heap(names.begin(), names.end());
  return names;
}

}  // namespace tombrello::qt
