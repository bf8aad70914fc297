#pragma once

namespace tombrello {

/// The short signal that asks for attention, whatever the options say. Returns at once.
class Beeper {
 public:
  virtual ~Beeper() = default;
  virtual void beep() = 0;
};

}  // namespace tombrello
