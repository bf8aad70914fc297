#pragma once

#include <windows.h>

#include "painting/pixel_canvas.h"
#include "windows/letters.h"

namespace tombrello::windows {

/// Pixels that the program paints and the system can show.
class BackBuffer {
 public:
  BackBuffer();
  BackBuffer(const BackBuffer&) = delete;
  BackBuffer& operator=(const BackBuffer&) = delete;
  ~BackBuffer();

  /// What was painted is lost. Without memory for it the buffer is of no size.
  void resize(painting::PixelSize size);
  void drop();  ///< gives the memory back
  const painting::PixelMemory& memory() const { return memory_; }
  HDC dc() const { return dc_; }
  void show(HDC screen, const RECT& part) const;

 private:
  HDC dc_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ before_ = nullptr;
  painting::PixelMemory memory_;
};

/// Paints into a back buffer, letters by the system.
class GdiCanvas : public painting::PixelCanvas {
 public:
  GdiCanvas(const BackBuffer& buffer, const GdiLetters& letters)
      : PixelCanvas(buffer.memory()), dc_(buffer.dc()), letters_(letters) {}

  void text(const TextItem& item, const painting::TableGeometry& geometry,
            const painting::Region& visible) override;

 protected:
  void finish_letters() override;

 private:
  HDC dc_;
  const GdiLetters& letters_;
  bool letters_under_way_ = false;
};

}  // namespace tombrello::windows
