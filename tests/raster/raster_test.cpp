#include "raster/rasteriser.h"

#include <gtest/gtest.h>

#include <atomic>
#include <climits>
#include <cstdlib>
#include <new>
#include <thread>

#include "pictures/outline.h"

namespace {

const std::thread::id kFirstThread = std::this_thread::get_id();
std::atomic<int> allocations_of_others = INT_MAX;  // that succeed

}  // namespace

void* operator new(std::size_t size) {
  const bool spare = std::this_thread::get_id() == kFirstThread || --allocations_of_others >= 0;
  if (void* memory = spare ? std::malloc(size) : nullptr) return memory;
  throw std::bad_alloc();
}
// The compiler would warn of what it sees through one of a pair.
[[gnu::noinline]] void operator delete(void* memory) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace tombrello::raster {
namespace {

using art::outline;

constexpr std::uint32_t kClear = 0;
constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kBlue = 0xFF0000FF;

int red(std::uint32_t pixel) {
  return static_cast<int>(pixel >> 16 & 0xFF);
}

TEST(Rasteriser, StretchesToTheSizeAndLeavesTheRestClear) {
  Drawing drawing{10, 20, {}};
  art::fill(drawing, outline("M5 10 L10 10 L10 20 L5 20 Z"), {255, 0, 0, 255});
  const Bitmap image = rasterise(drawing, 30, 40);
  EXPECT_EQ(image.at(14, 39), kClear);
  EXPECT_EQ(image.at(29, 19), kClear);
  EXPECT_EQ(image.at(15, 20), kRed);
  EXPECT_EQ(image.at(29, 39), kRed);
}

TEST(Rasteriser, FillsNestedOutlinesByTheirRule) {
  Drawing ring{30, 30, {}};
  art::fill(ring, outline("M0 0 L30 0 L30 30 L0 30 Z M10 10 L20 10 L20 20 L10 20 Z"),
            {0, 0, 255, 255});
  EXPECT_EQ(rasterise(ring, 30, 30).at(15, 15), kBlue);
  ring.shapes[0].even_odd = true;
  EXPECT_EQ(rasterise(ring, 30, 30).at(15, 15), kClear);
}

TEST(Rasteriser, PaintsGradientsFromEndToEnd) {
  Drawing band{256, 128, {}};
  art::fill(band, outline("M0 0 L256 0 L256 128 L0 128 Z"), Paint{});
  Paint& fill = band.shapes[0].fill;
  fill.kind = Paint::Kind::linear;
  fill.to = {256, 0};
  fill.stops = {{0, {0, 0, 0, 255}}, {1, {255, 255, 255, 255}}};
  const Bitmap linear = rasterise(band, 256, 128);
  EXPECT_LE(red(linear.at(0, 2)), 2);
  EXPECT_NEAR(red(linear.at(128, 2)), 128, 2);
  EXPECT_GE(red(linear.at(255, 2)), 253);

  fill.kind = Paint::Kind::radial;
  fill.from = {128, 64};
  fill.radius = 64;
  const Bitmap radial = rasterise(band, 256, 128);
  EXPECT_LE(red(radial.at(128, 64)), 3);
  EXPECT_NEAR(red(radial.at(128, 96)), 128, 3);
  EXPECT_EQ(red(radial.at(10, 64)), 255);
}

// A line of 4 units around a box of 20: half of it lies outside, and its corners are round.
TEST(Rasteriser, LinesHaveTheirWidthAndRoundEnds) {
  Drawing box{40, 40, {}};
  art::line(box, outline("M10 10 L30 10 L30 30 L10 30 Z"), 4, {255, 0, 0, 255});
  const Bitmap around = rasterise(box, 40, 40);
  EXPECT_EQ(around.at(20, 8), kRed);
  EXPECT_EQ(around.at(20, 11), kRed);
  EXPECT_EQ(around.at(20, 12), kClear);
  EXPECT_EQ(around.at(20, 7), kClear);
  EXPECT_LT(around.at(8, 8) >> 24, 160U);

  Drawing line{40, 40, {}};
  art::line(line, outline("M10 20 L30 20"), 4, {0, 0, 255, 128});
  const Bitmap half = rasterise(line, 40, 40);
  EXPECT_EQ(half.at(20, 20), 0x80000080) << "multiplied by its alpha";
  EXPECT_NE(half.at(9, 20), kClear);
  EXPECT_EQ(half.at(7, 20), kClear);
}

// A circle of four curves covers as much as a circle does.
TEST(Rasteriser, CurvesAreAsRoundAsTheyShould) {
  Drawing circle{200, 200, {}};
  art::fill(circle, art::circle({100, 100}, 100), {0, 0, 255, 255});
  double covered = 0;
  for (const std::uint32_t pixel : rasterise(circle, 200, 200).pixels)
    covered += (pixel >> 24) / 255.0;
  EXPECT_NEAR(covered, 31415.9, 50);
}

// Whatever lies across rows that different cores paint.
TEST(Rasteriser, LeavesNoSeamInALargePicture) {
  Drawing drawing{700, 700, {}};
  for (const char* slanted : {"M-350 -50 L450 750", "M-150 -50 L650 750", "M50 -50 L850 750"})
    art::line(drawing, outline(slanted), 2.5F, {200, 0, 0, 255});
  const Bitmap image = rasterise(drawing, 700, 700);
  for (int y = 1; y < 700; ++y) {
    for (int x = 1; x < 700; ++x) {
      ASSERT_EQ(image.at(x, y), image.at(x - 1, y - 1)) << x << ' ' << y;
    }
  }
  EXPECT_EQ(image.at(400, 300), 0xFFC80000U);
  for (const int spare : {0, 10, 20, 30}) {  // threads without memory, in the middle of their rows
    allocations_of_others = spare;
    EXPECT_TRUE(rasterise(drawing, 700, 700) == image) << spare;
  }
  allocations_of_others = INT_MAX;
}

}  // namespace
}  // namespace tombrello::raster
