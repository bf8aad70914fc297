#pragma once

#include <QString>

#include "seam/archive.h"

namespace tombrello::qt {

/// The program's folder on the disk, with the user's own data folder to fall back on.
class DiskArchive : public Archive {
 public:
  DiskArchive(QString program_folder, QString user_folder);

  std::optional<std::string> read(const std::string& name, std::size_t most) override;
  bool replace(const std::string& name, const std::string& content) override;
  std::vector<std::string> list(const std::string& folder) override;

 private:
  bool can_keep(const QString& path) const;

  QString program_folder_;
  QString user_folder_;
};

}  // namespace tombrello::qt
