// How long the game's thread is held up by choosing a tune while another plays: by the commands
// alone, since file, soundfont and device are the business of the thread behind them.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <thread>

#include "qt/audio/sdl_audio.h"

namespace tombrello {
using namespace qt;
namespace {

using Command = MediaControl::Command;
using Seconds = std::chrono::duration<double>;

void ChooseATune(benchmark::State& state) {
  setenv("SDL_AUDIODRIVER", "dummy", 1);
  devices::Audio audio(
      sdl_system(TOMBRELLO_ROOT "/assets", [] {}), [] {}, 1);
  audio.start();
  double most = 0;
  int count = 0;
  for ([[maybe_unused]] auto _ : state) {
    const auto started = std::chrono::steady_clock::now();
    audio.sequencer().command(Command::close);
    audio.sequencer().set_file_name(count % 2 == 0 ? "music/Canone.mid" : "music/Minuetto.mid");
    audio.sequencer().command(Command::open);
    audio.sequencer().command(Command::play);
    const Seconds took = std::chrono::steady_clock::now() - started;
    state.SetIterationTime(took.count());
    most = std::max(most, took.count());
    // From in the middle of the other tune's loading to its playing.
    std::this_thread::sleep_for(std::chrono::milliseconds(++count % 8 * 40));
  }
  state.counters["longest_ms"] = most * 1e3;
}
BENCHMARK(ChooseATune)->UseManualTime()->Iterations(100)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tombrello
