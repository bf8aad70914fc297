// Writes the program's icon at the sizes that desktops look for: tombrello-icons FOLDER.

#include <QDir>
#include <QImage>
#include <QSaveFile>
#include <cstdio>

#include "pictures/pictures.h"
#include "pictures/svg.h"
#include "qt/rasteriser.h"

namespace {

QString place(const QDir& folder, const QString& size, const char* kind) {
  folder.mkpath(size + "/apps");
  return folder.filePath(size + "/apps/tombrello." + kind);
}

bool write_scalable(const QString& path, const std::string& svg) {
  QSaveFile file(path);
  const auto size = static_cast<qint64>(svg.size());
  return file.open(QIODevice::WriteOnly) && file.write(svg.data(), size) == size && file.commit();
}

}  // namespace

int main(int argc, char** argv) {
  using namespace tombrello;
  if (argc != 2) {
    std::fputs("usage: tombrello-icons FOLDER\n", stderr);
    return 2;
  }
  const QDir folder(argv[1]);
  bool done = true;
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
    const QString name = QString("%1x%1").arg(size);
    done = done && qt::rasterise(art::draw_icon(size), size, size).save(place(folder, name, "png"));
  }
  done = done && write_scalable(place(folder, "scalable", "svg"), art::to_svg(art::draw_icon()));
  if (!done) std::fputs("tombrello-icons: can't write the icons\n", stderr);
  return done ? 0 : 1;
}
