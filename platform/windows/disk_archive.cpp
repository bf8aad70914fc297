#include "windows/disk_archive.h"

#include <windows.h>

#include <knownfolders.h>
#include <shlobj.h>

#include <algorithm>
#include <limits>
#include <utility>

#include "windows/strings.h"

namespace tombrello::windows {
namespace {

constexpr int kMostTries = 5;
constexpr DWORD kPause = 20;  // milliseconds between them

// Whoever replaces or removes a file that is open here isn't kept from it.
class File {
 public:
  File(const std::wstring& path, DWORD access, DWORD how, DWORD flags = FILE_ATTRIBUTE_NORMAL)
      : handle_(CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, how,
                            flags, nullptr)) {}
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() { close(); }

  explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE handle() const { return handle_; }
  void close() {
    if (*this) CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
  }

 private:
  HANDLE handle_;
};

bool is_plain(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

// Plain files only: opening a device could wait for ever.
std::optional<std::string> read_plain(const std::wstring& path, std::size_t most) {
  if (!is_plain(GetFileAttributesW(path.c_str()))) return std::nullopt;
  const File file(path, GENERIC_READ, OPEN_EXISTING);
  if (!file || GetFileType(file.handle()) != FILE_TYPE_DISK) return std::nullopt;
  LARGE_INTEGER size{};
  if (!GetFileSizeEx(file.handle(), &size)) return std::nullopt;
  const auto all = std::min<std::uint64_t>(static_cast<std::uint64_t>(size.QuadPart), most);
  const auto wanted =
      static_cast<DWORD>(std::min<std::uint64_t>(all, std::numeric_limits<DWORD>::max()));
  std::string bytes(wanted, '\0');
  DWORD got = 0;
  if (!ReadFile(file.handle(), bytes.data(), wanted, &got, nullptr)) return std::nullopt;
  bytes.resize(got);
  return bytes;
}

// A folder that can be written, where no folder or locked file stands in the file's place.
bool can_keep(const std::wstring& path) {
  const DWORD there = GetFileAttributesW(path.c_str());
  if (there != INVALID_FILE_ATTRIBUTES &&
      (there & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0) {
    return false;
  }
  return static_cast<bool>(File(path + L".try", GENERIC_WRITE | DELETE, CREATE_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE));
}

bool write_whole(const std::wstring& path, const std::string& content) {
  const File file(path, GENERIC_WRITE, CREATE_ALWAYS);
  DWORD written = 0;
  const auto size = static_cast<DWORD>(content.size());
  return file && WriteFile(file.handle(), content.data(), size, &written, nullptr) &&
         written == size && FlushFileBuffers(file.handle());
}

Trouble trouble_of(DWORD error) {
  switch (error) {
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return Trouble::full;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_SHARING_VIOLATION:
    case ERROR_PATH_NOT_FOUND:
      return Trouble::refused;
    default:
      return Trouble::broken;
  }
}

// Other programs look at a file as soon as it is written: a moment later they have done.
bool move_over(const std::wstring& from, const std::wstring& to) {
  for (int tries = 0;; ++tries) {
    if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
      return true;
    }
    const DWORD error = GetLastError();
    const bool held = error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
    if (!held || tries == kMostTries) return false;
    Sleep(kPause);
  }
}

// The old file, or the new one: whatever happens meanwhile.
Trouble replace_file(const std::wstring& path, const std::string& content) {
  const std::wstring fresh = path + L".new";
  if (write_whole(fresh, content) && move_over(fresh, path)) return Trouble::none;
  const Trouble trouble = trouble_of(GetLastError());
  DeleteFileW(fresh.c_str());
  return trouble;
}

// This form has no bound on its length, and no names that mean devices.
std::wstring unbounded(const std::wstring& path) {
  if (path.starts_with(L"\\\\?\\")) return path;
  if (path.starts_with(L"\\\\")) return L"\\\\?\\UNC" + path.substr(1);
  return L"\\\\?\\" + path;
}

}  // namespace

std::wstring path_in(const std::wstring& folder, const std::string& name) {
  std::wstring path = folder + L'\\' + wide(name);
  std::replace(path.begin(), path.end(), L'/', L'\\');
  return unbounded(path);
}

std::wstring program_folder() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD size = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (size < path.size()) {
      path.resize(size);
      return path.substr(0, path.find_last_of(L'\\'));
    }
    path.resize(path.size() * 2);
  }
}

std::wstring user_folder() {
  PWSTR known = nullptr;
  std::wstring folder = program_folder();
  if (SHGetKnownFolderPath(FOLDERID_RoamingAppData, KF_FLAG_DEFAULT, nullptr, &known) == S_OK) {
    folder = std::wstring(known) + L"\\Tombrello";
  }
  CoTaskMemFree(known);
  return folder;
}

DiskArchive::DiskArchive(std::wstring program_folder, std::wstring user_folder)
    : program_folder_(std::move(program_folder)), user_folder_(std::move(user_folder)) {}

std::optional<std::string> DiskArchive::read(const std::string& name, std::size_t most) {
  const std::wstring beside = path_in(program_folder_, name);
  if (!can_keep(beside)) {
    if (auto own = read_plain(path_in(user_folder_, name), most)) return own;
  }
  return read_plain(beside, most);
}

bool DiskArchive::replace(const std::string& name, const std::string& content) {
  const std::wstring beside = path_in(program_folder_, name);
  trouble_ = can_keep(beside) ? replace_file(beside, content) : Trouble::refused;
  if (trouble_ == Trouble::none) return true;
  CreateDirectoryW(unbounded(user_folder_).c_str(), nullptr);
  const Trouble with_user = replace_file(path_in(user_folder_, name), content);
  if (with_user == Trouble::none || trouble_ == Trouble::refused) trouble_ = with_user;
  return trouble_ == Trouble::none;
}

std::vector<std::string> DiskArchive::list(const std::string& folder, std::size_t most) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW(path_in(program_folder_, folder + "/*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return {};
  std::vector<std::wstring> names;
  do {
    const bool hidden =
        (found.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0 || found.cFileName[0] == L'.';
    if (is_plain(found.dwFileAttributes) && !hidden) names.emplace_back(found.cFileName);
  } while (FindNextFileW(search, &found));
  FindClose(search);
  std::sort(names.begin(), names.end());
  if (names.size() > most) names.resize(most);
  std::vector<std::string> told;
  for (const std::wstring& name : names) told.push_back(utf8(name));
  return told;
}

}  // namespace tombrello::windows
