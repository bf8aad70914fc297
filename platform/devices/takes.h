#pragma once

#include <cassert>
#include <random>
#include <string>

namespace tombrello::devices {

// The takes of a sound lie side by side: NAME.wav, NAME-2.wav, NAME-3.wav and so on; the first
// number that is missing ends them.

inline constexpr int kMostTakes = 9;

/// `take` 1..kMostTakes; the file's name has an ending.
inline std::string take_file(const std::string& file, int take) {
  assert(take >= 1 && take <= kMostTakes && file.find('.') != file.npos);
  if (take == 1) return file;
  const std::size_t ending = file.rfind('.');
  return file.substr(0, ending) + '-' + std::to_string(take) + file.substr(ending);
}

/// Any of `count` takes but the one heard last, each as likely; both count from 0.
inline std::size_t next_take(std::size_t count, std::size_t last, std::minstd_rand& chance) {
  assert(last < count);
  if (count == 1) return 0;
  return (last + 1 + chance() % (count - 1)) % count;
}

}  // namespace tombrello::devices
