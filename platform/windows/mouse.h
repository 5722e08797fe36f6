// Mouse messages as reports.
#pragma once

#include "platform/widget.h"
#include "platform/windows/lifetime.h"
#include "platform/windows/native_window.h"

namespace platform::windows {

class Mouse {
 public:
  // Reports a mouse message of the window; others are ignored. The events may destroy the object
  // that `lifetime` and this belong to.
  void Report(HWND hwnd, const Message& message, WidgetEvents& events, Lifetime& lifetime);

 private:
  void ReportMove(HWND hwnd, const Message& message, WidgetEvents& events, Lifetime& lifetime);
  // The pointer is on the window, or on its frame: asks the system to tell when it leaves.
  // True when it was not there before.
  bool Enter(HWND hwnd, bool on_frame);
  // False when the pointer only went from the frame to the inside or back.
  bool Leave(HWND hwnd);

  bool inside_ = false;
};

// Where a context menu is wanted, on the screen: at the pointer, or in the middle of the window
// when the keyboard asked for it.
[[nodiscard]] Point ContextMenuPlace(HWND hwnd, const Message& message);

}  // namespace platform::windows
