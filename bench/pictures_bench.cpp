// What it costs to draw the pictures anew when the window changes its size.

#include <benchmark/benchmark.h>

#include "pictures/pictures.h"
#include "raster/rasteriser.h"

namespace tombrello {
using namespace art;
namespace {

// All faces and backs, upright and lying, at the size of a card on a table so many pixels high.
void all_cards(benchmark::State& run) {
  const int w = static_cast<int>(run.range(0)) / 10;
  const int h = w * 157 / 100;
  for (auto _ : run) {
    for (const PictureSet set : {PictureSet::carta, PictureSet::cartao}) {
      for (int index = 1; index <= 52; ++index) {
        benchmark::DoNotOptimize(raster::rasterise(draw_picture({set, index}), w, h));
      }
    }
    for (const PictureSet set : {PictureSet::dorsov, PictureSet::dorsoo}) {
      for (int index = 0; index <= 1; ++index) {
        benchmark::DoNotOptimize(raster::rasterise(draw_picture({set, index}), w, h));
      }
    }
  }
}

void opening_picture(benchmark::State& run) {
  const int h = static_cast<int>(run.range(0)) * 6 / 10;
  for (auto _ : run) {
    benchmark::DoNotOptimize(
        raster::rasterise(draw_picture({PictureSet::quadro, 0}), h * 4 / 3, h));
  }
}

BENCHMARK(all_cards)->Arg(1080)->Arg(2160)->Unit(benchmark::kMillisecond);
BENCHMARK(opening_picture)->Arg(1080)->Arg(2160)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tombrello
