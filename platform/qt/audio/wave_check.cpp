#include "qt/audio/wave_check.h"

#include <algorithm>

#include "qt/audio/bytes.h"

namespace tombrello::qt {
namespace {

constexpr std::uint32_t kWhole = 1;
constexpr std::uint32_t kFloat = 3;
constexpr std::uint32_t kExtensible = 0xFFFE;

struct Format {
  std::uint32_t tag = 0;
  std::uint32_t channels = 0;
  std::uint32_t rate = 0;
  std::uint32_t bits = 0;

  std::uint32_t frame() const { return channels * bits / 8; }
  bool fits() const {
    const bool whole = tag == kWhole && bits % 8 == 0 && bits >= 8 && bits <= 32;
    return (whole || (tag == kFloat && bits == 32)) && channels >= 1 && channels <= 2 &&
           rate >= 8000 && rate <= 192'000;
  }
};

Format read_format(Bytes in) {
  Format format;
  format.tag = in.little_number(2);
  format.channels = in.little_number(2);
  format.rate = in.little_number(4);
  in.take(6);  // what follows from the others
  format.bits = in.little_number(2);
  if (format.tag == kExtensible) {
    in.take(8);
    format.tag = in.little_number(2);
  }
  return format;
}

void put(std::string& out, std::uint32_t value, int bytes) {
  for (; bytes > 0; --bytes, value >>= 8) out += static_cast<char>(value & 0xFF);
}

std::string write(const Format& format, std::string_view samples) {
  const auto size = static_cast<std::uint32_t>(samples.size());
  std::string out = "RIFF";
  put(out, 36 + size, 4);
  out += "WAVEfmt ";
  put(out, 16, 4);
  put(out, format.tag, 2);
  put(out, format.channels, 2);
  put(out, format.rate, 4);
  put(out, format.rate * format.frame(), 4);
  put(out, format.frame(), 2);
  put(out, format.bits, 2);
  out += "data";
  put(out, size, 4);
  return out.append(samples);
}

std::string read(Bytes in) {
  if (in.take(4) != "RIFF") return {};
  in.take(4);
  if (in.take(4) != "WAVE") return {};
  for (Format format;;) {
    const auto name = in.take(4);
    const std::size_t size = in.little_number(4);
    const auto content = in.take(std::min(size, in.left()));
    if (name == "fmt ") format = read_format(Bytes(content));
    if (name == "data") {
      if (!format.fits()) return {};
      const std::size_t frames = content.size() / format.frame();
      if (frames == 0 || frames > std::size_t{60} * format.rate) return {};
      return write(format, content.substr(0, frames * format.frame()));
    }
    if (size % 2 != 0) in.take(1);
  }
}

}  // namespace

std::string plain_wave(const std::string& bytes) {
  try {
    return read(Bytes(bytes));
  } catch (const std::out_of_range&) {
    return {};
  }
}

}  // namespace tombrello::qt
