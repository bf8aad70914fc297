#include "windows/letters.h"

#include "windows/strings.h"

namespace tombrello::windows {
namespace {

constexpr const char* kHandwriting = "Brush Script MT";

// Plain grey edges: coloured fringes look wrong on coloured felt, and differ between screens.
LOGFONTW described(const std::string& name, int pixels, bool bold) {
  LOGFONTW font{};
  font.lfHeight = -pixels;
  font.lfWeight = bold ? FW_BOLD : FW_NORMAL;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfQuality = ANTIALIASED_QUALITY;
  const bool handwriting = name == kHandwriting;
  font.lfItalic = handwriting;
  font.lfPitchAndFamily = static_cast<BYTE>(VARIABLE_PITCH | (handwriting ? FF_SCRIPT : FF_SWISS));
  lstrcpynW(font.lfFaceName, handwriting ? L"Brush Script MT" : L"Arial", LF_FACESIZE);
  return font;
}

}  // namespace

int line_height(HDC dc, HFONT font) {
  const HGDIOBJ before = SelectObject(dc, font);
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  SelectObject(dc, before);
  return static_cast<int>(metrics.tmHeight);
}

GdiLetters::GdiLetters() : dc_(CreateCompatibleDC(nullptr)) {}

GdiLetters::~GdiLetters() {
  DeleteDC(dc_);
}

const GdiLetters::Style& GdiLetters::style(const Font& font, int pixels, bool bold) const {
  const auto [place, fresh] = styles_.try_emplace({font.name, pixels, bold});
  if (fresh) {
    const LOGFONTW description = described(font.name, pixels, bold);
    Style& style = place->second;
    style.font.reset(CreateFontIndirectW(&description));
    style.height = line_height(dc_, style.font.get());
  }
  return place->second;
}

const GdiLetters::Style& GdiLetters::table_style(const Font& font,
                                                 const painting::TableGeometry& geometry) const {
  return style(font, geometry.letter_pixels(font), true);
}

painting::PixelPlace GdiLetters::top_left(const TextItem& item,
                                          const painting::TableGeometry& geometry) const {
  painting::PixelPlace place = geometry.pixel(item.x, item.y);
  for (const Font& line : item.lines_above) place.y += table_style(line, geometry).height;
  return place;
}

// Slanted letters reach out of their line at its ends.
painting::PixelRect GdiLetters::pixels(const TextItem& item,
                                       const painting::TableGeometry& geometry) const {
  const Style& style = table_style(item.font, geometry);
  const painting::PixelPlace start = top_left(item, geometry);
  const std::wstring text = wide(item.text);
  const HGDIOBJ before = SelectObject(dc_, style.font.get());
  SIZE size{};
  GetTextExtentPoint32W(dc_, text.data(), static_cast<int>(text.size()), &size);
  SelectObject(dc_, before);
  const int reach = style.height / 3 + 2;
  return {start.x - reach, start.y - 2, start.x + static_cast<int>(size.cx) + reach,
          start.y + style.height + 2};
}

}  // namespace tombrello::windows
