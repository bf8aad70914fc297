#pragma once

#include <filesystem>

#include "seam/archive.h"

namespace tombrello::qt {

/// The program's folder on the disk, with the user's own data folder to fall back on.
class DiskArchive : public Archive {
 public:
  DiskArchive(std::filesystem::path program_folder, std::filesystem::path user_folder);

  std::optional<std::string> read(const std::string& name, std::size_t most) override;
  bool replace(const std::string& name, const std::string& content) override;
  Trouble trouble() const override { return trouble_; }
  std::vector<std::string> list(const std::string& folder, std::size_t most) override;

 private:
  Trouble put_beside(const std::string& name, const std::string& content) const;
  Trouble put_with_user(const std::string& name, const std::string& content) const;

  std::filesystem::path program_folder_;
  std::filesystem::path user_folder_;
  Trouble trouble_ = Trouble::none;
};

}  // namespace tombrello::qt
