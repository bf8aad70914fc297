#pragma once

namespace tombrello::qt {

/// Qt waits for the session bus before the window's first paint, for ever if it must. A bus that
/// has given no sign of life after half a second is left alone for this run: without it there
/// are no accessible objects, which need the bus. To be called before the application object is
/// made, while the process has one thread.
void leave_silent_bus();

}  // namespace tombrello::qt
