#include "qt/audio/sdl_mixer_device.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <alsa/asoundlib.h>
#include <fluidsynth.h>

#include <fstream>
#include <optional>

#include "qt/audio/midi_reader.h"
#include "qt/audio/soundfont.h"
#include "qt/audio/wave_check.h"

namespace tombrello::qt {
namespace {

namespace fs = std::filesystem;

constexpr int kRate = 44100;
constexpr int kFrames = 1024;    // 23 ms: early enough for a rustle, rare enough to cost little
constexpr int kVoices = 16;      // waves that sound at the same time
constexpr int kTuneVolume = 64;  // of 128: behind the cards
constexpr std::uintmax_t kMostWave = 8 << 20;
constexpr std::uintmax_t kMostTune = 1 << 20;

// Only a font that is there is named: trying others costs a line on standard error each time.
bool choose_soundfont() {
  const char* const font = find_soundfont();
  return font != nullptr && Mix_SetSoundFonts(font) != 0;
}

// Where there is no device, SDL and the libraries behind it would say so on standard error, in many
// lines.
void say_nothing(const char*, int, const char*, int, const char*, ...) {}
void log_nothing(void*, int, SDL_LogPriority, const char*) {}

std::optional<std::string> read_file(const fs::path& file, std::uintmax_t most) {
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return std::nullopt;
  const auto size = fs::file_size(file, error);
  if (error || size > most) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(size), '\0');
  std::ifstream in(file, std::ios::binary);
  if (!in.read(bytes.data(), static_cast<std::streamsize>(size))) return std::nullopt;
  return bytes;
}

SDL_RWops* stream(const std::string& bytes) {
  return SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
}

}  // namespace

void ChunkDeleter::operator()(Mix_Chunk* chunk) const {
  Mix_FreeChunk(chunk);
}

void TuneDeleter::operator()(_Mix_Music* tune) const {
  Mix_HaltMusic();
  Mix_FreeMusic(tune);
}

// Nobody else in the process uses the library, and hints go with it alone.
SdlMixerDevice::~SdlMixerDevice() {
  SDL_Quit();
}

SdlMixerDevice::Lease SdlMixerDevice::lease() {
  const std::lock_guard lock(mutex_);
  if (failed_) return nullptr;
  if (leases_ == 0 && !open()) {
    // A device that stood open once may come back: a server that starts anew, a plug put in.
    failed_ = !stood_open_;
    return nullptr;
  }
  stood_open_ = true;
  ++leases_;
  return Lease(this);
}

void SdlMixerDevice::leave_thread() {
  SDL_TLSCleanup();
}

void SdlMixerDevice::release() {
  const std::lock_guard lock(mutex_);
  if (--leases_ > 0) return;
  Mix_CloseAudio();
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

bool SdlMixerDevice::open() {
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");  // or the program would survive being ended
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Tombrello");
  SDL_LogSetOutputFunction(log_nothing, nullptr);
  snd_lib_error_set_handler(say_nothing);
  for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG}) {
    fluid_set_log_function(level, nullptr, nullptr);
  }
  // Not kept through a rest or without a device: it may look out for devices ten times a second.
  if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
  // One format for ever: what was loaded stays fit to be played after a rest.
  if (Mix_OpenAudioDevice(kRate, AUDIO_S16SYS, 2, kFrames, nullptr, 0) != 0) {
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return false;
  }
  Mix_AllocateChannels(kVoices);
  Mix_VolumeMusic(kTuneVolume);
  has_font_ = choose_soundfont();
  return true;
}

Chunk SdlMixerDevice::load_wave(const fs::path& file) {
  const std::string wave = plain_wave(read_file(file, kMostWave).value_or(""));
  return Chunk(wave.empty() ? nullptr : Mix_LoadWAV_RW(stream(wave), 1));
}

void SdlMixerDevice::play(Mix_Chunk& wave) {
  const bool played = Mix_PlayChannel(-1, &wave, 0) >= 0;
  if (!played) Mix_PlayChannel(Mix_GroupOldest(-1), &wave, 0);
}

Tune SdlMixerDevice::load_tune(const fs::path& file, double& seconds) {
  const auto bytes = has_font_ ? read_file(file, kMostTune) : std::nullopt;
  if (!bytes) return nullptr;
  const auto midi = read_midi(*bytes);
  seconds = midi ? midi->seconds() : 0;
  if (seconds <= 0) return nullptr;
  return Tune(Mix_LoadMUSType_RW(stream(*bytes), MUS_MID, 1));
}

bool SdlMixerDevice::play(_Mix_Music& tune) {
  return Mix_PlayMusic(&tune, 1) == 0;
}

bool SdlMixerDevice::tune_playing() {
  return Mix_PlayingMusic() != 0;
}

}  // namespace tombrello::qt
