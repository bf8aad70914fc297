#include "windows/desktop.h"

#include <random>
#include <utility>

namespace tombrello::windows {

Desktop::Desktop(painting::PictureSource pictures)
    : window_(std::move(pictures)),
      audio_(
          mci_system(program_folder()), [this] { window_.wake(); }, std::random_device()()) {
  window_.set_woken([this] { audio_.deliver(); });
  window_.table().after_first_paint([this] { audio_.start(); });
}

}  // namespace tombrello::windows
