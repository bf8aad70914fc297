// Draws the game's pictures to be looked at: side by side, or each as an SVG file.

#include <QDir>
#include <QGuiApplication>
#include <QSaveFile>
#include <cstdio>
#include <string_view>

#include "pictures/pictures.h"
#include "pictures/svg.h"
#include "tools/pictures/sheets.h"

namespace {

using namespace tombrello;

bool told(bool done, const QString& path) {
  if (!done) std::fprintf(stderr, "can't write %s\n", qPrintable(path));
  return done;
}

bool write(const QDir& folder, const char* name, const QImage& image) {
  return told(image.save(folder.filePath(name)), folder.filePath(name));
}

bool write_svg(const QDir& folder, const QString& name, const Drawing& drawing) {
  const std::string text = art::to_svg(drawing);
  const auto size = static_cast<qint64>(text.size());
  QSaveFile file(folder.filePath(name + ".svg"));
  return told(file.open(QIODevice::WriteOnly) && file.write(text.data(), size) == size &&
                  file.flush() && file.commit(),
              file.fileName());
}

bool write_svgs(const QDir& folder) {
  const auto write_set = [&](PictureSet set, const char* name, int first, int last) {
    bool done = true;
    for (int index = first; index <= last; ++index) {
      const QString number = QString::number(index).rightJustified(2, '0');
      done = write_svg(folder, name + number, art::draw_picture({set, index})) && done;
    }
    return done;
  };
  return folder.mkpath(".") && write_set(PictureSet::carta, "carta-", 1, 52) &&
         write_set(PictureSet::dorsov, "dorsov-", 0, 1) &&
         write_svg(folder, "quadro", art::draw_picture({PictureSet::quadro, 0})) &&
         write_svg(folder, "icon", art::draw_icon()) &&
         write_svg(folder, "icon-small", art::draw_icon(16));
}

bool write_sheets(const QDir& folder) {
  return write(folder, "cards-small.png", card_sheet(60, 94)) &&
         write(folder, "cards-large.png", card_sheet(144, 226)) &&
         write(folder, "table.png", table_sheet(1920, 1080)) &&
         write(folder, "fan.png", fan_sheet(1)) && write(folder, "strips.png", strip_sheet(1)) &&
         write(folder, "opening.png", opening_sheet(640, 480)) &&
         write(folder, "icon.png", icon_sheet()) && write(folder, "tombrello.png", icon(256));
}

}  // namespace

int main(int argc, char** argv) {
  const bool vectors = argc == 3 && std::string_view(argv[1]) == "--svg";
  if (argc != 2 && !vectors) {
    std::fprintf(stderr,
                 "usage: tombrello-pictures [--svg] FOLDER\n"
                 "  writes contact sheets; with --svg every picture by itself, as vectors\n");
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);  // for the table's letters
  const QDir folder(argv[argc - 1]);
  return (vectors ? write_svgs(folder) : write_sheets(folder)) ? 0 : 1;
}
