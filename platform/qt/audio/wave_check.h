#pragma once

#include <string>

namespace tombrello::qt {

/// The same sound as a wave file with the plainest of headers, so that nobody behind it has to
/// make sense of another. Empty if the bytes, which may be any, aren't a wave file that is fit to
/// be played: samples as they are, whole numbers of 8 to 32 bits or floating point, mono or
/// stereo, 8000 to 192000 of them a second, a minute at most.
std::string plain_wave(const std::string& bytes);

}  // namespace tombrello::qt
