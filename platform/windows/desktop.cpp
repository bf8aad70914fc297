#include "windows/desktop.h"

#include <utility>

namespace tombrello::windows {

Desktop::Desktop(painting::PictureSource pictures) : window_(std::move(pictures)) {
  window_.set_woken([this] { audio_.deliver(); });
  window_.table().after_first_paint([this] { audio_.start(); });
}

}  // namespace tombrello::windows
