// What it costs to draw the pictures anew when the window changes its size.

#include <benchmark/benchmark.h>

#include "pictures/pictures.h"
#include "qt/rasteriser.h"

namespace tombrello {
using namespace art;
using namespace qt;
namespace {

// All faces and backs, upright and lying, at the size of a card on a table of 4K.
void all_cards(benchmark::State& run) {
  for (auto _ : run) {
    for (const PictureSet set : {PictureSet::carta, PictureSet::cartao}) {
      for (int index = 1; index <= 52; ++index) {
        benchmark::DoNotOptimize(rasterise(draw_picture({set, index}), 216, 339));
      }
    }
    for (const PictureSet set : {PictureSet::dorsov, PictureSet::dorsoo}) {
      for (int index = 0; index <= 1; ++index) {
        benchmark::DoNotOptimize(rasterise(draw_picture({set, index}), 216, 339));
      }
    }
  }
}
BENCHMARK(all_cards)->Unit(benchmark::kMillisecond);

void opening_picture(benchmark::State& run) {
  for (auto _ : run) {
    benchmark::DoNotOptimize(rasterise(draw_picture({PictureSet::quadro, 0}), 1152, 864));
  }
}
BENCHMARK(opening_picture)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tombrello
