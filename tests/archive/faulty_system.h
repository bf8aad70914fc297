#pragma once

namespace tombrello::faults {

/// What happens to one of the system calls that this process makes.
struct Fault {
  int call = 0;       ///< counted from 1 on; 0 for none
  int error = 0;      ///< it fails with this `errno`
  bool kill = false;  ///< instead, the process dies just before it
  bool cut = false;   ///< instead, a write writes a single byte
};

/// From here on calls are counted, and one of them meets the fault.
void arm(Fault fault);
/// Ends that, and answers how many calls were made.
int disarm();

}  // namespace tombrello::faults
