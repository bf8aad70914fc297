#include <fstream>
#include <iostream>

#include "tools/sounds/sounds.h"

// Usage: tombrello_sounds FOLDER
// Writes the program's three sounds into the folder.
int main(int count, char** arguments) {
  namespace sounds = tombrello::sounds;
  if (count != 2) {
    std::cerr << "usage: tombrello_sounds FOLDER\n";
    return 2;
  }
  const std::string folder = std::string(arguments[1]) + '/';
  const auto write = [&](const char* name, const sounds::Samples& samples) {
    std::ofstream out(folder + name, std::ios::binary);
    return static_cast<bool>((out << sounds::wave_file(samples)).flush());
  };
  const bool written = write("carta.wav", sounds::rustle()) &&
                       write("Notify.wav", sounds::notice()) && write("beep.wav", sounds::beep());
  if (!written) std::cerr << "can't write into " << folder << '\n';
  return written ? 0 : 1;
}
