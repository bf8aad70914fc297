// What the check lets through, the audio library takes, and it can't grow beyond bounds there.

#include <SDL.h>

#include "fuzz/fuzz.h"
#include "qt/audio/wave_check.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tombrello;
  const std::string wave = qt::plain_wave(bytes_of(data, size));
  if (wave.empty()) return 0;
  must(wave.size() <= size + 44, "larger than what it came from");
  must(qt::plain_wave(wave) == wave, "what was let through is refused");
  SDL_AudioSpec spec{};
  std::uint8_t* samples = nullptr;
  std::uint32_t length = 0;
  SDL_RWops* const stream = SDL_RWFromConstMem(wave.data(), static_cast<int>(wave.size()));
  must(SDL_LoadWAV_RW(stream, 1, &spec, &samples, &length) != nullptr, SDL_GetError());
  SDL_AudioCVT conversion{};
  const int built =
      SDL_BuildAudioCVT(&conversion, spec.format, spec.channels, spec.freq, AUDIO_S16SYS, 2, 44100);
  must(built >= 0, SDL_GetError());
  const double most = 60.0 * 44100 * 2 * 8;  // a minute, with room for steps in between
  must(length * (built > 0 ? conversion.len_ratio : 1) <= most, "too long when converted");
  SDL_FreeWAV(samples);
  return 0;
}
