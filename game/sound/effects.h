#pragma once

#include <cstdint>
#include <string>

#include "cards/outside.h"
#include "seam/beeper.h"
#include "seam/media.h"

namespace tombrello {

/// The card rustle and the signal of a tie, on the one wave device, and the beep.
class Effects : public Sound {
 public:
  /// `fruscio_opz`, 0 silent or 1 sounds on, is read at each play. All references outlive this.
  Effects(MediaControl& MMCw, Beeper& beeper, const std::uint8_t& fruscio_opz)
      : MMCw_(MMCw), beeper_(beeper), fruscio_opz_(fruscio_opz) {}

  void prepare();  ///< at load: the device as it is before the first `Apri_suono`
  void close();    ///< on the way out

  void Apri_suono(const std::string& nome) override;  ///< `suona` plays sounds/`nome`.wav
  void suona() override;
  void beep() override { beeper_.beep(); }

 private:
  void open(const std::string& file);

  MediaControl& MMCw_;
  Beeper& beeper_;
  const std::uint8_t& fruscio_opz_;
};

}  // namespace tombrello
