#include "pictures/pictures.h"

#include "pictures/faces.h"

namespace tombrello::art {

Drawing draw_picture(Picture picture) {
  switch (picture.set) {
    case PictureSet::carta:
    case PictureSet::cartao: {
      const int place = picture.index - 1;
      return draw_face(static_cast<Suit>(place / 13), place % 13 + 1);
    }
    case PictureSet::dorsov:
    case PictureSet::dorsoo:
      return draw_back(picture.index);
    case PictureSet::quadro:
      break;
  }
  return draw_opening();
}

}  // namespace tombrello::art
