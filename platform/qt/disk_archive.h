#pragma once

#include <filesystem>

#include "seam/archive.h"

namespace tombrello::qt {

/// The program's folder on the disk, with the user's own data folder to fall back on.
class DiskArchive : public Archive {
 public:
  /// Where files are put: beside the program if that folder can be written, or with the user in
  /// any case, as becomes an installed program that an administrator starts.
  enum class Keep { beside_program, with_user };

  DiskArchive(std::filesystem::path program_folder, std::filesystem::path user_folder,
              Keep keep = Keep::beside_program);

  std::optional<std::string> read(const std::string& name, std::size_t most) override;
  bool replace(const std::string& name, const std::string& content) override;
  Trouble trouble() const override { return trouble_; }
  std::vector<std::string> list(const std::string& folder, std::size_t most) override;

 private:
  bool keeps_beside(const std::filesystem::path& path) const;
  Trouble put_beside(const std::string& name, const std::string& content) const;
  Trouble put_with_user(const std::string& name, const std::string& content) const;

  std::filesystem::path program_folder_;
  std::filesystem::path user_folder_;
  Keep keep_;
  Trouble trouble_ = Trouble::none;
};

}  // namespace tombrello::qt
