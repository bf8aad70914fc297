#include "pictures/glyphs.h"

#include <algorithm>
#include <array>

#include "pictures/outline.h"

namespace tombrello::art {
namespace {

// All glyphs are drawn 100 units high, baseline at 100, left edge at 0.
struct Glyph {
  char letter;
  float width;
  const char* path;
};

constexpr const char* kSix =
    "M54 26 L36 26 C36 18 33 15 29 15 C21 15 18 24 18 42 C22 37 27 35 33 35 C48 35 56 47 56 66 "
    "C56 88 46 100 29 100 C9 100 0 86 0 52 C0 17 10 0 29 0 C45 0 53 9 54 26 Z "
    "M28 49 C21 49 18 55 18 67 C18 79 21 86 28 86 C35 86 38 80 38 67 C38 55 35 49 28 49 Z";

constexpr std::array<Glyph, 13> kIndices = {{
    {'A', 64, "M21 0 L43 0 L64 100 L45 100 L41 79 L23 79 L19 100 L0 100 Z M26 63 L38 63 L32 29 Z"},
    {'2', 56,
     "M2 32 C2 10 12 0 28 0 C45 0 55 11 55 28 C55 42 48 50 38 62 C30 71 24 78 22 84 L56 84 "
     "L56 100 L0 100 C0 82 8 69 22 54 C32 43 37 38 37 28 C37 19 34 15 28 15 C22 15 19 20 19 32 Z"},
    {'3', 56,
     "M2 28 C3 10 12 0 28 0 C45 0 54 10 54 25 C54 37 49 44 41 48 C51 52 56 60 56 72 "
     "C56 90 45 100 28 100 C11 100 1 90 0 70 L18 70 C19 81 22 85 28 85 C35 85 38 80 38 71 "
     "C38 61 34 56 25 56 L19 56 L19 41 L25 41 C33 41 36 36 36 27 C36 19 33 15 28 15 "
     "C22 15 20 19 19 28 Z"},
    {'4', 60,
     "M32 0 L50 0 L50 62 L60 62 L60 78 L50 78 L50 100 L32 100 L32 78 L0 78 L0 62 Z "
     "M32 62 L32 30 L17 62 Z"},
    {'5', 56,
     "M6 0 L52 0 L52 16 L22 16 L21 38 C25 35 29 34 33 34 C48 34 56 46 56 66 C56 88 45 100 28 100 "
     "C11 100 1 90 0 72 L18 72 C19 81 22 85 28 85 C35 85 38 79 38 67 C38 54 35 48 29 48 "
     "C25 48 22 50 20 54 L3 54 Z"},
    {'6', 56, kSix},
    {'7', 54, "M0 0 L54 0 L54 15 C40 38 33 65 31 100 L12 100 C14 66 22 40 35 17 L0 17 Z"},
    {'8', 58,
     "M29 0 C46 0 55 9 55 25 C55 36 51 43 44 47 C53 52 58 60 58 72 C58 90 47 100 29 100 "
     "C11 100 0 90 0 72 C0 60 5 52 14 47 C7 43 3 36 3 25 C3 9 12 0 29 0 Z "
     "M29 14 C23 14 20 18 20 27 C20 36 23 40 29 40 C35 40 38 36 38 27 C38 18 35 14 29 14 Z "
     "M29 55 C21 55 18 61 18 70 C18 80 21 86 29 86 C37 86 40 80 40 70 C40 61 37 55 29 55 Z"},
    {'9', 56, kSix},  // turned
    {'0', 73,         // the whole "10"
     "M10 0 L24 0 L24 100 L6 100 L6 24 L0 26 L0 10 C5 8 8 5 10 0 Z "
     "M52 0 C66 0 73 14 73 50 C73 86 66 100 52 100 C38 100 31 86 31 50 C31 14 38 0 52 0 Z "
     "M52 14 C48 14 47 22 47 50 C47 78 48 86 52 86 C56 86 57 78 57 50 C57 22 56 14 52 14 Z"},
    {'J', 48,
     "M14 0 L48 0 L48 70 C48 90 39 100 23 100 C7 100 0 90 0 70 L0 64 L18 64 L18 70 "
     "C18 80 19 85 23 85 C27 85 29 81 29 71 L29 15 L14 15 Z"},
    {'Q', 62,
     "M29 0 C48 0 58 14 58 50 C58 64 57 74 53 82 L62 92 L51 103 L42 95 C38 98 34 100 29 100 "
     "C10 100 0 86 0 50 C0 14 10 0 29 0 Z M29 15 C21 15 18 24 18 50 C18 76 21 85 29 85 L30 85 "
     "L24 77 L34 67 L39 73 C40 67 40 60 40 50 C40 24 37 15 29 15 Z"},
    {'K', 64,
     "M0 0 L19 0 L19 40 L41 0 L62 0 L38 42 L64 100 L43 100 L25 62 L19 72 L19 100 L0 100 Z"},
}};

constexpr std::array<Glyph, 12> kDisplay = {{
    {'T', 92,
     "M2 0 L90 0 L92 34 L88 34 C84 14 76 6 62 6 L61 6 L61 92 C61 95 64 96 72 96 L72 100 L20 100 "
     "L20 96 C28 96 31 95 31 92 L31 6 L30 6 C16 6 8 14 4 34 L0 34 Z"},
    {'o', 64,
     "M32 33 C52 33 64 47 64 67 C64 88 52 101 32 101 C12 101 0 88 0 67 C0 47 12 33 32 33 Z "
     "M32 37 C26 37 24 45 24 67 C24 89 26 97 32 97 C38 97 40 89 40 67 C40 45 38 37 32 37 Z"},
    {'m', 119,
     "M0 39 L0 35 L33 34 L33 46 C38 38 44 34 52 34 C62 34 69 38 72 47 C77 38 84 34 92 34 "
     "C104 34 111 41 111 54 L111 92 C111 95 114 96 119 96 L119 100 L80 100 L80 96 "
     "C84 96 85 95 85 92 L85 53 C85 45 84 42 80 42 C75 42 73 48 73 57 L73 92 "
     "C73 95 74 96 77 96 L77 100 L42 100 L42 96 C46 96 47 95 47 92 L47 53 C47 45 46 42 42 42 "
     "C37 42 34 48 34 57 L34 92 C34 95 36 96 39 96 L39 100 L0 100 L0 96 C5 96 8 95 8 92 L8 44 "
     "C8 40 5 39 0 39 Z"},
    {'b', 72,
     "M0 5 L0 1 L32 0 L32 42 C36 37 42 34 48 34 C62 34 72 47 72 67 C72 88 62 101 47 101 "
     "C40 101 34 98 30 93 L20 101 L7 101 L7 10 C7 6 5 5 0 5 Z M32 50 L32 86 C34 92 36 94 39 94 "
     "C45 94 47 86 47 67 C47 48 45 41 40 41 C36 41 34 44 32 50 Z"},
    {'r', 61,
     "M0 39 L0 35 L33 34 L33 48 C36 39 42 34 49 34 C57 34 61 39 61 46 C61 53 57 57 51 57 "
     "C45 57 42 53 43 47 C38 48 34 55 34 66 L34 92 C34 95 36 96 42 96 L42 100 L0 100 L0 96 "
     "C5 96 8 95 8 92 L8 44 C8 40 5 39 0 39 Z"},
    {'e', 61,
     "M31 33 C50 33 61 45 61 66 L23 66 C23 84 29 94 41 94 C49 94 55 89 58 80 L61 81 "
     "C58 94 47 101 33 101 C12 101 0 88 0 67 C0 47 12 33 31 33 Z "
     "M23 62 L39 62 C39 44 37 37 31 37 C26 37 23 44 23 62 Z"},
    {'l', 40,
     "M0 5 L0 1 L33 0 L33 92 C33 95 35 96 40 96 L40 100 L0 100 L0 96 C5 96 7 95 7 92 L7 10 "
     "C7 6 5 5 0 5 Z"},
    {'F', 82,
     "M0 0 L80 0 L82 30 L78 30 C74 12 66 5 50 5 L40 5 L40 47 L44 47 C54 47 57 42 58 32 L62 32 "
     "L62 68 L58 68 C57 56 54 52 44 52 L40 52 L40 92 C40 95 43 96 52 96 L52 100 L0 100 L0 96 "
     "C7 96 10 95 10 92 L10 8 C10 5 7 4 0 4 Z"},
    {'a', 68,
     "M4 50 C4 40 14 33 31 33 C49 33 58 40 58 54 L58 90 C58 94 59 95 61 95 C63 95 64 94 64 90 "
     "L68 90 C67 97 63 101 54 101 C43 101 36 98 34 92 C30 98 24 101 17 101 C6 101 0 95 0 86 "
     "C0 73 12 68 33 65 L33 50 C33 41 31 37 27 37 C24 37 22 38 21 40 C25 42 27 45 27 49 "
     "C27 54 23 58 17 58 C10 58 4 55 4 50 Z "
     "M33 69 C26 71 23 76 23 83 C23 89 25 92 28 92 C31 92 33 89 33 85 Z"},
    {'s', 52,
     "M45 35 L46 55 L42 55 C39 43 33 37 24 37 C18 37 15 39 15 43 C15 47 19 49 29 52 "
     "C45 57 51 63 51 76 C51 91 42 101 28 101 C21 101 15 99 10 95 L6 101 L3 101 L1 76 L4 76 "
     "C8 90 16 97 25 97 C32 97 36 94 36 89 C36 84 32 82 21 78 C7 74 1 67 1 56 C1 42 10 33 23 33 "
     "C30 33 35 35 39 38 L42 35 Z"},
    {'i', 40,
     "M0 39 L0 35 L33 34 L33 92 C33 95 35 96 40 96 L40 100 L0 100 L0 96 C5 96 7 95 7 92 L7 44 "
     "C7 40 5 39 0 39 Z M20 0 C28 0 33 5 33 12 C33 19 28 24 20 24 C12 24 7 19 7 12 "
     "C7 5 12 0 20 0 Z"},
    {'v', 68,
     "M0 35 L37 35 L37 39 C32 39 31 40 33 44 L44 72 L54 46 C56 41 54 39 47 39 L47 35 L68 35 "
     "L68 39 C63 39 60 41 58 46 L37 101 L30 101 L7 45 C5 41 3 39 0 39 Z"},
}};

const Glyph& display_glyph(char letter) {
  for (const Glyph& glyph : kDisplay) {
    if (glyph.letter == letter) return glyph;
  }
  return kDisplay.front();
}

}  // namespace

Path index_outline(int rank, float middle, float top, float height) {
  const Glyph& glyph = kIndices.at(static_cast<std::size_t>(rank - 1));
  constexpr float kWidest = 67;
  const float scale = height / 100;
  const float width = std::min(glyph.width, kWidest) * scale;
  Affine place = shift(middle - width / 2, top) * scaling(width / glyph.width, scale);
  if (rank == 9) place = place * half_turn(glyph.width, 100);
  return moved(outline(glyph.path), place);
}

Path display_outline(std::string_view text, float height, float spacing) {
  const float scale = height / 100;
  Path result;
  float x = 0;
  for (const char letter : text) {
    const Glyph& glyph = display_glyph(letter);
    join(result, moved(outline(glyph.path), shift(x, -height) * scaling(scale, scale)));
    x += glyph.width * scale + spacing;
  }
  return result;
}

float display_width(std::string_view text, float height, float spacing) {
  float width = -spacing;
  for (const char letter : text) width += display_glyph(letter).width * height / 100 + spacing;
  return width;
}

}  // namespace tombrello::art
