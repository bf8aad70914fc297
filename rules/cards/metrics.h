#pragma once

#include <cstdint>

namespace tombrello {

/// Measures of the table in logical units, single precision. Set once, when the table is set
/// up; the rules only need them to tell which card or meld an x stands for.
struct Metrics {
  float mezza_larghezza = 400;
  float mezza_altezza = 300;
  float larghezza_carta = 60;
  float altezza_carta = 94.25F;
  std::int16_t passo_ventaglio = 3;  ///< a fanned card shows one part in so many

  /// `scala_carte` is above 0; 1 gives a card of 60 by 94.25.
  static Metrics at_scale(float scala_carte) {
    Metrics m;
    m.larghezza_carta = 60 * scala_carte;
    m.altezza_carta = 94.25F * scala_carte;
    return m;
  }

  float passo_carta() const { return larghezza_carta / static_cast<float>(passo_ventaglio); }
  float ventaglio_x() const { return mezza_larghezza - half_fan(); }
  float ventaglio_y() const { return mezza_altezza - half_fan(); }
  float riga_mano() const { return 2 * mezza_altezza - altezza_carta - 20; }
  float riga_alzata() const { return 2 * mezza_altezza - altezza_carta - 45; }
  float colonna_destra() const { return 2 * mezza_larghezza - altezza_carta - 20; }
  float tavolo_y() const { return mezza_altezza - altezza_carta / 2; }
  /// Where the strips of melds of seats 1 and 3 begin.
  float striscia_x() const { return mezza_larghezza - 110; }
  float passo_striscia() const { return larghezza_carta / 5; }

 private:
  float half_fan() const { return 7.5F / static_cast<float>(passo_ventaglio) * larghezza_carta; }
};

}  // namespace tombrello
