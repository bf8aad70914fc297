#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tombrello {

inline const std::filesystem::path kRoot = TOMBRELLO_ROOT;  ///< the sources

inline std::string bytes_of(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace tombrello
