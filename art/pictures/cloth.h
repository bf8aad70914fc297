#pragma once

#include <initializer_list>

#include "pictures/figure.h"

namespace tombrello::art {

/// Motifs of figured cloths, drawn about the origin.
namespace motif {
Path pomegranate();  ///< of brocade
Path sprig();
Path star();
Path ring();
Path tail();     ///< of ermine
Path link();     ///< of mail
Path lozenge();  ///< a diamond with hollow sides
}  // namespace motif

/// Both shoulders of a robe, a gown or a doublet, down to the seam.
void add_shoulders(Figure& figure, const Path& motif, Rgba ground, Rgba thread);
void add_brocade(Figure& figure, std::string_view cloth, const Path& motif, Rgba ground,
                 Rgba thread);
void add_ermine(Figure& figure, std::string_view fur);
/// Its links are painted where it is seen.
void add_mail(Figure& figure, std::string_view mail, std::initializer_list<std::string_view> seen);

}  // namespace tombrello::art
