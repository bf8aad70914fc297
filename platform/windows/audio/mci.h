#pragma once

#include <string>

namespace tombrello::windows {

/// One file open in the system's media control. Belongs to the thread that opened it; any call
/// may take as long as the device likes.
class MciFile {
 public:
  /// `type` is the device's, such as "waveaudio". Where it can't be opened, nothing else does
  /// anything.
  MciFile(const std::wstring& path, const std::wstring& type);
  MciFile(MciFile&& other) noexcept;
  MciFile& operator=(MciFile&& other) noexcept;
  ~MciFile();

  bool opened() const { return !alias_.empty(); }
  bool play();  ///< from the beginning; returns at once
  bool playing() const;
  double seconds() const;  ///< of the whole file; 0 if that isn't known

 private:
  std::wstring ask(const std::wstring& what) const;

  std::wstring alias_;
};

}  // namespace tombrello::windows
