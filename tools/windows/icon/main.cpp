// tombrello-icon FILE: writes the program's icon, in the sizes that the system asks for.

#include <array>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

#include "pictures/pictures.h"
#include "raster/rasteriser.h"

namespace {

using tombrello::raster::Bitmap;

constexpr std::array kSizes = {16, 20, 24, 32, 40, 48, 64, 128, 256};
constexpr std::uint32_t kHeader = 40;

void put(std::string& bytes, std::uint32_t number, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> 8 * i & 0xFF);
}

std::uint32_t plain(std::uint32_t pixel) {
  const std::uint32_t alpha = pixel >> 24;
  if (alpha == 0) return 0;
  std::uint32_t result = alpha << 24;
  for (int shift = 0; shift < 24; shift += 8) {
    result |= ((pixel >> shift & 0xFF) * 255 + alpha / 2) / alpha << shift;
  }
  return result;
}

// Rows from the bottom, and behind them an empty mask: the alpha tells what shows.
std::string picture(const Bitmap& image) {
  const auto size = static_cast<std::uint32_t>(image.width);
  const std::uint32_t mask_row = (size + 31) / 32 * 4;
  std::string bytes;
  for (const std::uint32_t field : {kHeader, size, 2 * size}) put(bytes, field, 4);
  put(bytes, 1, 2);
  put(bytes, 32, 2);
  for (int i = 0; i < 6; ++i) put(bytes, 0, 4);
  for (int y = image.height; y-- > 0;) {
    for (int x = 0; x < image.width; ++x) put(bytes, plain(image.at(x, y)), 4);
  }
  return bytes + std::string(mask_row * size, '\0');
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::string list;
  std::string pictures;
  put(list, 0, 2);
  put(list, 1, 2);
  put(list, kSizes.size(), 2);
  for (const int size : kSizes) {
    const std::string one =
        picture(tombrello::raster::rasterise(tombrello::art::draw_icon(), size, size));
    const auto shown = static_cast<std::uint32_t>(size % 256);
    const auto start = static_cast<std::uint32_t>(6 + 16 * kSizes.size() + pictures.size());
    put(list, shown | shown << 8, 4);
    put(list, 1 | 32U << 16, 4);
    put(list, static_cast<std::uint32_t>(one.size()), 4);
    put(list, start, 4);
    pictures += one;
  }
  std::ofstream file(argv[1], std::ios::binary);
  file << list << pictures;
  return file.flush() ? 0 : 1;
}
