#pragma once

#include <cstdint>

namespace tombrello {

/// The sets of pictures that travel with the program.
enum class PictureSet : std::uint8_t {
  carta,   ///< upright faces, 1 (Ace of hearts) to 52 (King of spades); 96 by 153 pixels
  cartao,  ///< the same faces turned a quarter turn clockwise; 153 by 96 pixels
  dorsov,  ///< upright backs, 0 and 1; 96 by 154 and 96 by 155 pixels
  dorsoo,  ///< the same backs turned a quarter turn clockwise
  quadro,  ///< the opening picture, 0; 640 by 480 pixels
};

/// Names one picture. An index out of its set's range is a fault of the caller.
struct Picture {
  PictureSet set = PictureSet::carta;
  int index = 0;

  bool operator==(const Picture&) const = default;
};

}  // namespace tombrello
