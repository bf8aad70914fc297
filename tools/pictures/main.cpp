// Draws the game's pictures side by side, to be looked at: tombrello-pictures FOLDER.

#include <QDir>
#include <QGuiApplication>
#include <cstdio>

#include "tools/pictures/sheets.h"

namespace {

bool write(const QDir& folder, const char* name, const QImage& image) {
  if (image.save(folder.filePath(name))) return true;
  std::fprintf(stderr, "can't write %s\n", name);
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: tombrello-pictures FOLDER\n");
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);  // for the table's letters
  const QDir folder(argv[1]);
  const bool done =
      write(folder, "cards-small.png", card_sheet(60, 94)) &&
      write(folder, "cards-large.png", card_sheet(144, 226)) &&
      write(folder, "table.png", table_sheet(1920, 1080)) &&
      write(folder, "fan.png", fan_sheet(1)) && write(folder, "strips.png", strip_sheet(1)) &&
      write(folder, "opening.png", opening_sheet(640, 480)) &&
      write(folder, "icon.png", icon_sheet()) && write(folder, "tombrello.png", icon(256));
  return done ? 0 : 1;
}
