#pragma once

#include <windows.h>

#include <string>

namespace tombrello::windows {

/// Tells assistive technology, which asks for this window's object, what to call it and what it is:
/// an empty name, or 0, leaves what the system says. To be called when it first asks.
void describe(HWND window, const std::wstring& name, LONG role);

}  // namespace tombrello::windows
