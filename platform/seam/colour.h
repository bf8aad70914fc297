#pragma once

#include <cstdint>

namespace tombrello {

/// 0x00BBGGRR: blue in the third byte, red in the lowest.
using Colour = std::uint32_t;

inline constexpr Colour kFelt = 28672;     ///< the table, and every box that erases
inline constexpr Colour kGrey = 12632256;  ///< behind the opening picture
inline constexpr Colour kGreen = 49152;    ///< a name not on turn; the scoreboard's panel
inline constexpr Colour kWhite = 16777215;
inline constexpr Colour kBlue = 16711680;
inline constexpr Colour kBlack = 0;
inline constexpr Colour kPaleYellow = 12648447;
inline constexpr Colour kYellow = 65535;

}  // namespace tombrello
