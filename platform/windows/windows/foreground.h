// Passes the foreground back to an earlier window.
#pragma once

#include "platform/windows/win32.h"

namespace platform::windows {

// Gives the foreground from a window that closes back to the one that had it before, unless that
// window is gone, hidden or disabled, or the user works in another window. Otherwise the system
// would choose the program's topmost window.
inline void GiveForegroundBack(HWND from, HWND before) {
  if (::IsWindowVisible(before) && ::IsWindowEnabled(before) && ::GetForegroundWindow() == from) {
    ::SetForegroundWindow(before);
  }
}

}  // namespace platform::windows
