#pragma once

#include <string>
#include <vector>

namespace tombrello::sounds {

inline constexpr int kRate = 44100;

/// Samples of one channel, -1..1, `kRate` a second.
using Samples = std::vector<double>;

inline constexpr int kRustles = 6;  ///< takes of the rustle

Samples rustle(int take);           ///< a card slides and is put down: "carta"; takes count from 1
std::string rustle_file(int take);  ///< "carta.wav", "carta-2.wav" and so on
Samples notice();                   ///< two gentle notes: "Notify"
Samples beep();                     ///< one short soft tone

/// The bytes of a wave file: one channel, 16 bits.
std::string wave_file(const Samples& samples);

}  // namespace tombrello::sounds
