#pragma once

#include "pictures/figure.h"

namespace tombrello::art {

/// What the court wears on its heads, about the point between the eyes of a head.
void add_lily_crown(Figure& figure);
void add_imperial_crown(Figure& figure);
void add_trefoil_crown(Figure& figure);
void add_helmet(Figure& figure);
void add_pearl_crown(Figure& figure);
void add_diamond_crown(Figure& figure);
void add_club_crown(Figure& figure);
void add_spiked_crown(Figure& figure);
void add_page_cap(Figure& figure);
void add_brimmed_hat(Figure& figure);
void add_hunter_cap(Figure& figure);
void add_guard_cap(Figure& figure);

}  // namespace tombrello::art
