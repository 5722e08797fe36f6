// Who has the keyboard.
#pragma once

#include "platform/windows/win32.h"

namespace platform::windows {

// From a window that goes to the one that had it before, unless that one is gone or closed to the
// user, or the user has gone on elsewhere. Left to itself, the system would choose the program's
// window that lies on top.
inline void GiveForegroundBack(HWND from, HWND before) {
  if (::IsWindowVisible(before) && ::IsWindowEnabled(before) && ::GetForegroundWindow() == from) {
    ::SetForegroundWindow(before);
  }
}

}  // namespace platform::windows
