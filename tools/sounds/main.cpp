#include <fstream>
#include <iostream>

#include "tools/sounds/sounds.h"

// Usage: tombrello_sounds FOLDER
// Writes the program's sounds into the folder.
int main(int count, char** arguments) {
  namespace sounds = tombrello::sounds;
  if (count != 2) {
    std::cerr << "usage: tombrello_sounds FOLDER\n";
    return 2;
  }
  const std::string folder = std::string(arguments[1]) + '/';
  const auto write = [&](const std::string& name, const sounds::Samples& samples) {
    std::ofstream out(folder + name, std::ios::binary);
    return static_cast<bool>((out << sounds::wave_file(samples)).flush());
  };
  bool written = write("Notify.wav", sounds::notice()) && write("beep.wav", sounds::beep());
  for (int take = 1; take <= sounds::kRustles; ++take)
    written = write(sounds::rustle_file(take), sounds::rustle(take)) && written;
  if (!written) std::cerr << "can't write into " << folder << '\n';
  return written ? 0 : 1;
}
