#include "windows/audio/mci.h"

#include <windows.h>

#include <mmsystem.h>

#include <atomic>
#include <cwchar>
#include <utility>

namespace tombrello::windows {
namespace {

// What the device for waves takes of a path at most.
constexpr std::size_t kLongestPath = 127;

bool command(const std::wstring& words) {
  return mciSendStringW(words.c_str(), nullptr, 0, nullptr) == 0;
}

// The media control knows neither the unbounded form of a path nor long ones.
std::wstring plain_path(std::wstring path) {
  if (path.size() > kLongestPath + 4) {
    std::wstring brief(path.size() + 1, L'\0');
    const DWORD size =
        GetShortPathNameW(path.c_str(), brief.data(), static_cast<DWORD>(brief.size()));
    if (size > 0 && size < brief.size()) path = brief.substr(0, size);
  }
  if (path.starts_with(L"\\\\?\\UNC")) return L'\\' + path.substr(7);
  return path.starts_with(L"\\\\?\\") ? path.substr(4) : path;
}

std::wstring fresh_alias() {
  static std::atomic<unsigned> count = 0;  // names in the media control are the process's own
  return L"tombrello" + std::to_wstring(++count);
}

}  // namespace

MciFile::MciFile(const std::wstring& path, const std::wstring& type) : alias_(fresh_alias()) {
  if (!command(L"open \"" + plain_path(path) + L"\" type " + type + L" alias " + alias_)) {
    alias_.clear();
    return;
  }
  command(L"set " + alias_ + L" time format milliseconds");
}

MciFile::MciFile(MciFile&& other) noexcept : alias_(std::exchange(other.alias_, {})) {}

MciFile& MciFile::operator=(MciFile&& other) noexcept {
  std::swap(alias_, other.alias_);
  return *this;
}

MciFile::~MciFile() {
  if (opened()) command(L"close " + alias_);
}

bool MciFile::play() {
  return opened() && command(L"play " + alias_ + L" from 0");
}

std::wstring MciFile::ask(const std::wstring& what) const {
  wchar_t answer[64] = {};
  if (opened()) mciSendStringW((L"status " + alias_ + L' ' + what).c_str(), answer, 64, nullptr);
  return answer;
}

bool MciFile::playing() const {
  return ask(L"mode") == L"playing";
}

double MciFile::seconds() const {
  return std::wcstod(ask(L"length").c_str(), nullptr) / 1000;
}

}  // namespace tombrello::windows
