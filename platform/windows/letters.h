#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>

#include "painting/canvas.h"

namespace tombrello::windows {

struct FontEnd {
  void operator()(HFONT font) const { DeleteObject(font); }
};
/// Letters of the system, given back to it with their owner.
using OwnFont = std::unique_ptr<std::remove_pointer_t<HFONT>, FontEnd>;

int line_height(HDC dc, HFONT font);  ///< in pixels

/// The system's letters, in sizes of pixels.
class GdiLetters : public painting::Letters {
 public:
  GdiLetters();
  GdiLetters(const GdiLetters&) = delete;
  GdiLetters& operator=(const GdiLetters&) = delete;
  ~GdiLetters() override;

  struct Style {
    OwnFont font;    ///< stays as long as the letters
    int height = 0;  ///< of a line, in pixels
  };
  /// The only place that knows which families of the system stand for those that the game asks
  /// for.
  const Style& style(const Font& font, int pixels, bool bold) const;
  /// The bold one in which the table's texts are printed.
  const Style& table_style(const Font& font, const painting::TableGeometry& geometry) const;

  painting::PixelRect pixels(const TextItem& item,
                             const painting::TableGeometry& geometry) const override;
  /// Where a text's first letter begins, at the top.
  painting::PixelPlace top_left(const TextItem& item,
                                const painting::TableGeometry& geometry) const;

 private:
  HDC dc_;
  mutable std::map<std::tuple<std::string, int, bool>, Style> styles_;
};

}  // namespace tombrello::windows
