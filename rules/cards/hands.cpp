#include "cards/hands.h"

#include <cassert>
#include <utility>

namespace tombrello {

void Hands::riduco_carte(int seat) {
  assert(s_.n_mano[seat] <= kHandSlots);
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
  s_.presenze[seat] = presenze_of(seat);
}

bool Hands::presenze_agree(int seat) const {
  return s_.presenze[seat] == presenze_of(seat);
}

PresenceString Hands::presenze_of(int seat) const {
  PresenceString held;
  for (int k = 1; k <= s_.n_mano[seat]; ++k) held.mark(s_.mano[seat][k]);
  return held;
}

void Hands::tidy(int seat) {
  riduco_carte(seat);
  rebuild_presenze(seat);
}

int Hands::first_slot_with(int seat, int first_pack_code) const {
  const auto& mano = s_.mano[seat];
  for (int k = 1; k <= s_.n_mano[seat]; ++k) {
    if (first_pack_twin(mano[k]) == first_pack_code) return k;
  }
  assert(false && "the hand holds the card");
  return 0;
}

}  // namespace tombrello
