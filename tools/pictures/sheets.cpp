#include "tools/pictures/sheets.h"

#include <QPainter>
#include <QTransform>

#include "headless/headless_window.h"
#include "pictures/pictures.h"
#include "qt/canvas.h"
#include "qt/geometry.h"
#include "qt/rasteriser.h"
#include "table/painted_table.h"
#include "tools/simulation/simulation.h"

using tombrello::PictureSet;
using tombrello::art::draw_picture;
using tombrello::qt::rasterise;

namespace {

const QColor kCloth(0, 112, 0);

QImage felt(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(kCloth);
  return image;
}

QImage face(int index, int unit) {
  return rasterise(draw_picture({PictureSet::carta, index}), 60 * unit, 94 * unit);
}

QImage lying(const QImage& upright, int degrees) {
  return upright.transformed(QTransform().rotate(degrees));
}

}  // namespace

QImage card_sheet(int width, int height) {
  const int gap = width / 10;
  QImage sheet = felt(14 * (width + gap) + gap, 4 * (height + gap) + gap);
  QPainter painter(&sheet);
  for (int i = 0; i < 54; ++i) {
    const int column = i < 52 ? i % 13 : 13;
    const int row = i < 52 ? i / 13 : i - 52;
    const tombrello::Picture picture = i < 52 ? tombrello::Picture{PictureSet::carta, i + 1}
                                              : tombrello::Picture{PictureSet::dorsov, i - 52};
    painter.drawImage(gap + column * (width + gap), gap + row * (height + gap),
                      rasterise(draw_picture(picture), width, height));
  }
  return sheet;
}

QImage fan_sheet(int unit) {
  QImage sheet = felt(340 * unit, 430 * unit);
  QPainter painter(&sheet);
  for (int row = 0; row < 4; ++row) {
    for (int i = 0; i < 13; ++i) {
      painter.drawImage((20 + 20 * i) * unit, (10 + 105 * row) * unit,
                        face(row * 13 + i + 1, unit));
    }
  }
  return sheet;
}

QImage strip_sheet(int unit) {
  QImage sheet = felt(640 * unit, 430 * unit);
  QPainter painter(&sheet);
  for (int row = 0; row < 4; ++row) {
    for (int i = 0; i < 13; ++i) {
      const QImage upright = face(row * 13 + i + 1, unit);
      painter.drawImage((10 + 12 * i) * unit, (10 + 105 * row) * unit, upright);
      painter.drawImage((230 + 102 * row) * unit, (10 + 12 * i) * unit, lying(upright, 270));
      painter.drawImage((230 + 102 * row) * unit, (225 + 12 * i - (row % 2 != 0 ? 0 : 4)) * unit,
                        lying(upright, 90));
    }
  }
  return sheet;
}

QImage table_sheet(int width, int height) {
  using namespace tombrello;
  using namespace tombrello::qt;
  constexpr int kTurns = 26;
  Simulation simulation(ScriptKind::melder, 7);
  simulation.play_hand(kTurns, true);
  State state = simulation.state();
  state.nomi = {"TU", "OVEST", "NORD", "EST"};
  state.di_turno = 1;
  HeadlessTimer timer;
  HeadlessWindow window(timer);
  const Geometry geometry;
  PaintedTable table(state, geometry, window);
  window.surface().set_background(tombrello::kFelt);
  window.surface().set_font_name("Arial");
  state.phase = Phase::hand;
  table.repaint();

  QImage sheet(width, height, QImage::Format_RGB32);
  QPainter painter(&sheet);
  QtCanvas canvas(painter);
  painting::PictureCache pictures(draw_picture);
  painting::paint_surface(canvas, QtLetters(), window.surface(), TableGeometry(sheet.size(), 1, 96),
                          to_region(sheet.rect()), pictures);
  return sheet;
}

QImage opening_sheet(int width, int height) {
  return rasterise(draw_picture({PictureSet::quadro, 0}), width, height);
}

QImage icon(int size) {
  return rasterise(tombrello::art::draw_icon(size), size, size);
}

QImage icon_sheet() {
  QImage sheet(390, 148, QImage::Format_RGB32);
  sheet.fill(QColor(200, 200, 204));
  QPainter painter(&sheet);
  int x = 10;
  for (const int size : {16, 24, 32, 48, 64, 128}) {
    painter.drawImage(x, 10, icon(size));
    x += size + 10;
  }
  return sheet;
}
