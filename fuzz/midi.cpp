// Any bytes are refused, or have a length in seconds.

#include <cmath>

#include "fuzz/fuzz.h"
#include "qt/audio/midi_reader.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tombrello;
  const auto midi = qt::read_midi(bytes_of(data, size));
  if (!midi) return 0;
  const double seconds = midi->seconds();
  must(std::isfinite(seconds) && seconds >= 0, "a tune without a length");
  must(midi->events.size() <= size, "more events than bytes");
  return 0;
}
