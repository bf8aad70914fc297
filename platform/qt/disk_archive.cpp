#include "qt/disk_archive.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>
#include <limits>
#include <utility>

namespace tombrello::qt {
namespace {

// Plain files only: opening a pipe or a device could wait for ever.
std::optional<std::string> read_plain(const QString& path, std::size_t most) {
  if (!QFileInfo(path).isFile()) return std::nullopt;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  constexpr auto kMost = static_cast<std::size_t>(std::numeric_limits<qint64>::max());
  const QByteArray bytes = file.read(static_cast<qint64>(std::min(most, kMost)));
  if (file.error() != QFileDevice::NoError) return std::nullopt;
  return bytes.toStdString();
}

}  // namespace

DiskArchive::DiskArchive(QString program_folder, QString user_folder, Keep keep)
    : program_folder_(std::move(program_folder)),
      user_folder_(std::move(user_folder)),
      keep_(keep) {}

// A folder that can be written, where no folder or locked file stands in the file's place.
bool DiskArchive::can_keep(const QString& path) const {
  const QFileInfo folder(program_folder_);
  const QFileInfo file(path);
  return keep_ == Keep::beside_program && folder.isDir() && folder.isWritable() &&
         (!file.exists() || (file.isFile() && file.isWritable()));
}

std::optional<std::string> DiskArchive::read(const std::string& name, std::size_t most) {
  const QString file = QString::fromStdString(name);
  const QString beside = program_folder_ + '/' + file;
  if (!can_keep(beside)) {
    if (auto own = read_plain(user_folder_ + '/' + file, most)) return own;
  }
  return read_plain(beside, most);
}

bool DiskArchive::replace(const std::string& name, const std::string& content) {
  QString path = program_folder_ + '/' + QString::fromStdString(name);
  if (!can_keep(path)) path = user_folder_ + '/' + QString::fromStdString(name);
  QDir().mkpath(QFileInfo(path).path());
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  const auto size = static_cast<qint64>(content.size());
  return file.write(content.data(), size) == size && file.commit();
}

std::vector<std::string> DiskArchive::list(const std::string& folder) {
  const QDir place(program_folder_ + '/' + QString::fromStdString(folder));
  std::vector<std::string> names;
  for (const QString& name : place.entryList(QDir::Files, QDir::Name)) {
    names.push_back(name.toStdString());
  }
  return names;
}

}  // namespace tombrello::qt
