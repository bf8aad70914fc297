#include "windows/back_buffer.h"

#include <utility>

#include "windows/native_window.h"
#include "windows/strings.h"

namespace tombrello::windows {

BackBuffer::BackBuffer() : dc_(CreateCompatibleDC(nullptr)) {}

BackBuffer::~BackBuffer() {
  drop();
  DeleteDC(dc_);
}

void BackBuffer::drop() {
  if (bitmap_ == nullptr) return;
  SelectObject(dc_, before_);
  DeleteObject(std::exchange(bitmap_, nullptr));
  memory_ = {};
}

void BackBuffer::resize(painting::PixelSize size) {
  drop();
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = size.width;
  info.bmiHeader.biHeight = -size.height;  // rows from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* pixels = nullptr;
  bitmap_ = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
  if (bitmap_ == nullptr) return;
  before_ = SelectObject(dc_, bitmap_);
  memory_ = {static_cast<std::uint32_t*>(pixels), size};
}

void BackBuffer::show(HDC screen, const RECT& part) const {
  BitBlt(screen, part.left, part.top, part.right - part.left, part.bottom - part.top, dc_,
         part.left, part.top, SRCCOPY);
}

void GdiCanvas::finish_letters() {
  if (std::exchange(letters_under_way_, false)) GdiFlush();
}

void GdiCanvas::text(const TextItem& item, const painting::TableGeometry& geometry,
                     const painting::Region& visible) {
  const std::wstring text = wide(item.text);
  const painting::PixelPlace place = letters_.top_left(item, geometry);
  const HGDIOBJ before = SelectObject(dc_, letters_.table_style(item.font, geometry).font.get());
  SetTextColor(dc_, item.colour);
  SetBkMode(dc_, TRANSPARENT);
  for (const painting::PixelRect& rect : visible.rects()) {
    const RECT part = to_rect(rect);
    ExtTextOutW(dc_, place.x, place.y, ETO_CLIPPED, &part, text.data(),
                static_cast<UINT>(text.size()), nullptr);
  }
  SelectObject(dc_, before);
  letters_under_way_ = true;
}

}  // namespace tombrello::windows
