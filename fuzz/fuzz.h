#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace tombrello {

/// Ends a fuzzer whose input has found a fault.
inline void must(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

inline std::string bytes_of(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace tombrello

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
