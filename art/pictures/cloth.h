#pragma once

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

void add_brocade(Figure& figure, std::string_view cloth, const Path& motif, Rgba ground,
                 Rgba thread);
void add_ermine(Figure& figure, std::string_view fur);
void add_mail(Figure& figure, std::string_view mail);

}  // namespace tombrello::art
