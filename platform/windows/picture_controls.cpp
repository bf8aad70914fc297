#include "windows/picture_controls.h"

#include <windowsx.h>

#include <algorithm>

#include "raster/rasteriser.h"

namespace tombrello::windows {
namespace {

using painting::PixelRect;

Rgba shade(Colour colour, int percent) {
  const auto part = [=](unsigned shift) {
    const int value = static_cast<int>(colour >> shift & 0xFF) * percent / 100;
    return static_cast<std::uint8_t>(std::min(value, 255));
  };
  return {part(0), part(8), part(16)};
}

Shape box(float width, float height, float inset) {
  Shape shape;
  shape.path.move({inset, inset});
  shape.path.line({width - inset, inset});
  shape.path.line({width - inset, height - inset});
  shape.path.line({inset, height - inset});
  shape.path.close();
  return shape;
}

// A raised bar with a tick: without a word it says that a press on it agrees.
Drawing bar_with_tick(Colour colour, float width, float height) {
  Shape bar = box(width, height, 0.5F);
  bar.fill.kind = Paint::Kind::linear;
  bar.fill.to = {0, height};
  bar.fill.stops = {{0, shade(colour, 170)}, {0.45F, shade(colour, 100)}, {1, shade(colour, 75)}};
  bar.stroke_width = 1;
  bar.stroke = shade(colour, 45);
  Shape tick;
  const float unit = height / 10;
  const Point middle{width / 2, height / 2};
  tick.path.move({middle.x - 3.2F * unit, middle.y + 0.2F * unit});
  tick.path.line({middle.x - 0.9F * unit, middle.y + 2.5F * unit});
  tick.path.line({middle.x + 3.6F * unit, middle.y - 2.5F * unit});
  tick.filled = false;
  tick.stroke_width = 1.6F * unit;
  tick.stroke = {255, 255, 255};
  return {width, height, {bar, tick}};
}

void put(BackBuffer& buffer, const raster::Bitmap& image, const GdiLetters& letters,
         Colour behind) {
  const PixelRect all{0, 0, image.width, image.height};
  buffer.resize({image.width, image.height});
  GdiCanvas canvas(buffer, letters);
  canvas.fill(all, behind);
  canvas.picture(image, all, all);
}

}  // namespace

ShapeControl::ShapeControl(Colour colour, TableView& table) : Control(table), colour_(colour) {
  create(L"TombrelloBar", kControlStyle, table.handle());
}

void ShapeControl::fit(const Area& area) {
  const PixelRect place = table_.geometry().pixels(area);
  move_to(handle(), place);
  if (place.empty()) return;
  const Drawing bar =
      bar_with_tick(colour_, static_cast<float>(place.width()), static_cast<float>(place.height()));
  put(buffer_, raster::rasterise(bar, place.width(), place.height()), table_.letters(), kFelt);
  repaint();
}

LRESULT ShapeControl::message(UINT message, WPARAM w, LPARAM l) {
  return message == WM_NCHITTEST ? HTTRANSPARENT : PaintedWindow::message(message, w, l);
}

PictureControl::PictureControl(ControlId id, Picture picture, TableView& table,
                               WindowEvents& events)
    : Control(table), id_(id), picture_(picture), events_(events) {
  create(L"TombrelloPicture", kControlStyle, table.handle());
}

void PictureControl::fit(const Area& area) {
  move_to(handle(), table_.geometry().picture_pixels(area));
  repaint();
}

// Not before it is seen: a window that is dragged larger takes many sizes.
void PictureControl::paint(HDC dc, const RECT& stale) {
  const PixelRect place = client_pixels(handle());
  const painting::PixelSize size{place.width(), place.height()};
  if (size != asked_for_) prepare(size);
  buffer_.show(dc, stale);
}

// Without memory for it nothing shows.
void PictureControl::prepare(painting::PixelSize size) {
  asked_for_ = size;
  try {
    const Drawing drawing = table_.pictures().vectors(picture_);
    put(buffer_, raster::rasterise(drawing, size.width, size.height), table_.letters(),
        table_.surface().background());
  } catch (const std::bad_alloc&) {
    buffer_.drop();
  }
}

void PictureControl::set_shown(bool shown) {
  Control::set_shown(shown);
  if (shown) {
    take_keyboard();
  } else {
    buffer_.drop();
    asked_for_ = {};
  }
}

LRESULT PictureControl::message(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_LBUTTONDOWN:
      SetFocus(handle());
      return 0;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
      events_.control_clicked(id_);
      return 0;
    case WM_KEYDOWN:
      w == VK_F1 ? table_.take_key_from_elsewhere(w) : table_.scrolls_panel(w);
      return 0;
    case WM_CHAR:
      events_.control_key_pressed(id_);
      return 0;
    default:
      return PaintedWindow::message(message, w, l);
  }
}

}  // namespace tombrello::windows
