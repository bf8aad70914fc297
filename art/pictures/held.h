#pragma once

#include "pictures/figure.h"

namespace tombrello::art {

/// What the court holds, at its place on the card.
void add_sceptre(Figure& figure);
void add_axe(Figure& figure);
void add_orb(Figure& figure);
void add_sword(Figure& figure);
void add_rose(Figure& figure);
void add_mirror(Figure& figure);
void add_fan(Figure& figure);
void add_tulip(Figure& figure);
void add_letter(Figure& figure);
void add_pennon(Figure& figure);
void add_bow(Figure& figure);
void add_halberd(Figure& figure);

}  // namespace tombrello::art
