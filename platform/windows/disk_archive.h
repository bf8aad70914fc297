#pragma once

#include <string>

#include "seam/archive.h"

namespace tombrello::windows {

/// The program's folder on the disk, with the user's own data folder to fall back on.
class DiskArchive : public Archive {
 public:
  /// Whole paths, of any length, without a backslash at the end.
  DiskArchive(std::wstring program_folder, std::wstring user_folder);

  std::optional<std::string> read(const std::string& name, std::size_t most) override;
  bool replace(const std::string& name, const std::string& content) override;
  Trouble trouble() const override { return trouble_; }
  std::vector<std::string> list(const std::string& folder, std::size_t most) override;

 private:
  std::wstring program_folder_;
  std::wstring user_folder_;
  Trouble trouble_ = Trouble::none;
};

/// Where the running program lies.
std::wstring program_folder();
/// The program's own folder under the user's application data.
std::wstring user_folder();
/// A whole path under a folder, of any length; `name` has '/' between its names.
std::wstring path_in(const std::wstring& folder, const std::string& name);

}  // namespace tombrello::windows
