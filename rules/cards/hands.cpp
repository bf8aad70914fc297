#include "cards/hands.h"

#include <utility>

namespace tombrello {

void Hands::riduco_carte(int seat) {
  auto& mano = s_.mano[seat];
  int count = 0;
  // Slots are only ever copied downward, so that the hand serves as its own work array.
  for (int k = 1; k <= s_.n_mano[seat]; ++k) {
    if (mano[k] != 0) mano[++count] = mano[k];
  }
  s_.n_mano[seat] = static_cast<std::uint8_t>(count);
}

void Hands::raggruppo_carte(int seat) {
  auto& mano = s_.mano[seat];
  bool swapped = true;
  while (swapped) {
    swapped = false;
    for (int k = 2; k <= kHandSlots; ++k) {
      if (ValCarta(mano[k]) > ValCarta(mano[k - 1])) {
        std::swap(mano[k], mano[k - 1]);
        swapped = true;
      }
    }
  }
}

void Hands::rebuild_presenze(int seat) {
  s_.presenze[seat].clear();
  for (int k = 1; k <= s_.n_mano[seat]; ++k) s_.presenze[seat].mark(s_.mano[seat][k]);
}

}  // namespace tombrello
