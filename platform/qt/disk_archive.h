#pragma once

#include <QString>

#include "seam/archive.h"

namespace tombrello::qt {

/// The program's folder on the disk, with the user's own data folder to fall back on.
class DiskArchive : public Archive {
 public:
  /// Where files are put: beside the program if that folder can be written, or with the user in
  /// any case, as becomes an installed program that an administrator starts.
  enum class Keep { beside_program, with_user };

  DiskArchive(QString program_folder, QString user_folder, Keep keep = Keep::beside_program);

  std::optional<std::string> read(const std::string& name, std::size_t most) override;
  bool replace(const std::string& name, const std::string& content) override;
  std::vector<std::string> list(const std::string& folder) override;

 private:
  bool can_keep(const QString& path) const;

  QString program_folder_;
  QString user_folder_;
  Keep keep_;
};

}  // namespace tombrello::qt
