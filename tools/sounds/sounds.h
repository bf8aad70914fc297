#pragma once

#include <string>
#include <vector>

namespace tombrello::sounds {

inline constexpr int kRate = 44100;

/// Samples of one channel, -1..1, `kRate` a second.
using Samples = std::vector<double>;

Samples rustle();  ///< a card slides and is put down: "carta"
Samples notice();  ///< two gentle notes: "Notify"
Samples beep();    ///< one short soft tone

/// The bytes of a wave file: one channel, 16 bits.
std::string wave_file(const Samples& samples);

}  // namespace tombrello::sounds
