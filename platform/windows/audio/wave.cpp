#include "windows/audio/wave.h"

#include <windows.h>

#include <mmsystem.h>

#include <algorithm>
#include <map>
#include <utility>

#include "windows/audio/mci.h"
#include "windows/disk_archive.h"

namespace tombrello::windows {
namespace {

constexpr const char* kBeep = "sounds/beep.wav";
constexpr std::size_t kVoices = 4;  // of one wave, that may sound at a time

/// The waves that were asked for, each with some voices.
class Waves {
 public:
  explicit Waves(const std::wstring& folder) : folder_(folder) {}

  bool load(const std::string& file) { return voices_of(file).front().opened(); }

  // With all voices sounding the oldest one starts anew.
  void play(const std::string& file) {
    auto& voices = voices_of(file);
    auto free = std::find_if(voices.begin(), voices.end(),
                             [](const MciFile& voice) { return !voice.playing(); });
    if (free == voices.end() && voices.size() < kVoices) {
      free = voices.insert(voices.end(), open(file));
    }
    if (free == voices.end()) free = voices.begin();
    free->play();
    std::rotate(free, free + 1, voices.end());
  }

 private:
  MciFile open(const std::string& file) const { return {path_in(folder_, file), L"waveaudio"}; }
  std::vector<MciFile>& voices_of(const std::string& file) {
    auto& voices = voices_[file];
    if (voices.empty()) voices.push_back(open(file));
    return voices;
  }

  const std::wstring& folder_;
  std::map<std::string, std::vector<MciFile>> voices_;
};

}  // namespace

void Wave::command(Command command) {
  switch (command) {
    case Command::open:
      opened_ = file_name_;
      post({opened_, false});
      break;
    case Command::close:
      opened_.clear();
      break;
    case Command::play:
      if (!opened_.empty()) post({opened_, true});
      break;
  }
}

void Wave::beep() {
  const bool heard = [this] {
    const std::lock_guard lock(box_->mutex);
    return box_->beeps && !box_->finished;
  }();
  if (heard) return post({kBeep, true});
  MessageBeep(MB_OK);
}

void Wave::post(Job job) {
  const std::lock_guard lock(box_->mutex);
  auto& jobs = box_->jobs;
  if (box_->finished || std::find(jobs.begin(), jobs.end(), job) != jobs.end()) return;
  jobs.push_back(std::move(job));
  box_->changed.notify_all();
}

void Wave::serve(Box& box, const std::wstring& folder) {
  Waves waves(folder);
  const bool beeps = waveOutGetNumDevs() > 0 && waves.load(kBeep);
  std::unique_lock lock(box.mutex);
  box.beeps = beeps;
  while (!box.leaving) {
    box.changed.wait(lock, [&] { return box.leaving || !box.jobs.empty(); });
    const auto jobs = std::exchange(box.jobs, {});
    const bool leaving = box.leaving;
    lock.unlock();
    for (const Job& job : jobs) {
      if (!leaving) job.play ? waves.play(job.file) : static_cast<void>(waves.load(job.file));
    }
    lock.lock();
  }
}

}  // namespace tombrello::windows
