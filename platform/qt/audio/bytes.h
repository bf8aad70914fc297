#pragma once

#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace tombrello::qt {

/// Reads on in bytes that it doesn't trust; throws std::out_of_range where they end.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_(bytes) {}

  bool empty() const { return bytes_.empty(); }
  std::size_t left() const { return bytes_.size(); }
  int peek() const { return bytes_.empty() ? 0 : static_cast<std::uint8_t>(bytes_.front()); }

  std::string_view take(std::size_t count) {
    if (count > bytes_.size()) throw std::out_of_range("cut off");
    const auto taken = bytes_.substr(0, count);
    bytes_.remove_prefix(count);
    return taken;
  }

  /// At most four bytes, the highest first.
  std::uint32_t number(std::size_t count) {
    std::uint32_t value = 0;
    for (const char byte : take(count)) value = value << 8 | static_cast<std::uint8_t>(byte);
    return value;
  }

  /// At most four bytes, the lowest first.
  std::uint32_t little_number(std::size_t count) {
    std::uint32_t value = 0;
    int shift = 0;
    for (const char byte : take(count)) {
      value |= std::uint32_t{static_cast<std::uint8_t>(byte)} << shift;
      shift += 8;
    }
    return value;
  }

 private:
  std::string_view bytes_;
};

}  // namespace tombrello::qt
