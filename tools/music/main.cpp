#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "tools/music/arrange.h"

// Usage: tombrello_music FOLDER_OF_SCORES FOLDER_OF_TUNES
// Turns each score NAME.txt into the tune NAME.mid.
int main(int count, char** arguments) {
  namespace fs = std::filesystem;
  if (count != 3) {
    std::cerr << "usage: tombrello_music FOLDER_OF_SCORES FOLDER_OF_TUNES\n";
    return 2;
  }
  for (const auto& entry : fs::directory_iterator(arguments[1])) {
    if (entry.path().extension() != ".txt") continue;
    try {
      std::ifstream in(entry.path(), std::ios::binary);
      const std::string text{std::istreambuf_iterator<char>(in), {}};
      const std::string tune = tombrello::music::midi_file(
          tombrello::music::arrange(tombrello::music::read_score(text)));
      const fs::path out = fs::path(arguments[2]) / entry.path().stem().concat(".mid");
      if (!(std::ofstream(out, std::ios::binary) << tune).flush())
        throw std::runtime_error("can't write " + out.string());
    } catch (const std::exception& error) {
      std::cerr << entry.path().string() << ": " << error.what() << '\n';
      return 1;
    }
  }
  return 0;
}
