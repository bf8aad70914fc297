// The table's painting on the Qt surface, in the middle of a hand.

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <array>
#include <chrono>

#include "bench/some_hand.h"
#include "headless/headless_window.h"
#include "pictures/pictures.h"
#include "qt/canvas.h"
#include "qt/geometry.h"
#include "table/painted_table.h"

namespace tombrello {
using namespace art;
using namespace qt;
namespace {

class Screen {
 public:
  Screen(int width, int height)
      : image_(width, height, QImage::Format_RGB32),
        geometry_(image_.size(), 1, 96),
        pictures_(draw_picture),
        state_(some_hand()),
        window_(timer_),
        table_(state_, places_, window_) {
    window_.surface().set_background(kFelt);
    table_.repaint();
    window_.surface().take_changes();
    paint(geometry_.table());
  }

  void redraw_fan() {
    table_.ridisegno_carte();
    paint(changes());
  }
  /// Deals the 52 cards of the fans with no picture ready. Answers the seconds from the game's
  /// call to the last pixel, card by card.
  std::array<double, kSeats * kHandCards> deal() {
    pictures_ = painting::PictureCache(draw_picture);
    std::array<double, kSeats * kHandCards> took{};
    for (std::size_t i = 0; i < took.size(); ++i) {
      const int seat = 1 + static_cast<int>(i % kSeats);
      const auto start = std::chrono::steady_clock::now();
      table_.card_dealt(seat, 1 + static_cast<int>(i / kSeats), state_.mazzo[i + 1]);
      paint(changes());
      took[i] = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    return took;
  }
  void paint_whole() { paint(geometry_.table()); }
  double megabytes() const { return static_cast<double>(pictures_.bytes()) / 1e6; }

 private:
  painting::Region changes() {
    return painting::changed_pixels(window_.surface().take_changes(), geometry_, letters_,
                                    geometry_.table());
  }
  void paint(const painting::Region& region) {
    QPainter painter(&image_);
    QtCanvas canvas(painter);
    paint_surface(canvas, letters_, window_.surface(), geometry_, region, pictures_);
  }

  QImage image_;
  TableGeometry geometry_;
  painting::PictureCache pictures_;
  QtLetters letters_;
  State state_;
  Geometry places_;
  HeadlessTimer timer_;
  HeadlessWindow window_;
  PaintedTable table_;
};

// The erasing box, the four names and 14 cards, from the game's call to the last pixel.
void redraw_fan(benchmark::State& run) {
  Screen screen(static_cast<int>(run.range(0)), static_cast<int>(run.range(1)));
  for (auto _ : run) screen.redraw_fan();
}
BENCHMARK(redraw_fan)->Args({1920, 1080})->Args({3840, 2160})->Unit(benchmark::kMicrosecond);

// `longest` is the card that takes the longest, each by the best of all deals.
void deal(benchmark::State& run) {
  Screen screen(static_cast<int>(run.range(0)), static_cast<int>(run.range(1)));
  auto best = screen.deal();
  for (auto _ : run) {
    const auto took = screen.deal();
    for (std::size_t i = 0; i < best.size(); ++i) best[i] = std::min(best[i], took[i]);
  }
  run.counters["longest"] = *std::max_element(best.begin(), best.end());
}
BENCHMARK(deal)->Args({1920, 1080})->Args({3840, 2160})->Unit(benchmark::kMillisecond);

void whole_table(benchmark::State& run) {
  Screen screen(static_cast<int>(run.range(0)), static_cast<int>(run.range(1)));
  for (auto _ : run) screen.paint_whole();
  run.counters["pictures_MB"] = screen.megabytes();
}
BENCHMARK(whole_table)->Args({1920, 1080})->Args({3840, 2160})->Unit(benchmark::kMicrosecond);

// The same with every picture rendered anew, as after a resize.
void first_paint_of_table(benchmark::State& run) {
  for (auto _ : run) Screen(static_cast<int>(run.range(0)), static_cast<int>(run.range(1)));
}
BENCHMARK(first_paint_of_table)
    ->Args({1920, 1080})
    ->Args({3840, 2160})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tombrello
