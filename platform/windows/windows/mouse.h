// Mouse messages as reports.
#pragma once

#include "platform/widget.h"
#include "platform/windows/lifetime.h"
#include "platform/windows/windows/native_window.h"

namespace platform::windows {

// Who holds the mouse while the left button is down, so that its release is heard wherever it is.
enum class Capture {
  kHere,       // this; and the button pressed and released on the window is a click
  kByControl,  // the system's control, which makes its own clicks
};

class Mouse {
 public:
  explicit Mouse(Capture capture) : capture_(capture) {}

  // Reports a mouse message of the window; others are ignored. The events may destroy the object
  // that `lifetime` and this belong to.
  void Report(HWND hwnd, const Message& message, WidgetEvents& events, Lifetime& lifetime);

 private:
  void ReportLeftUp(HWND hwnd, const Message& message, WidgetEvents& events, Lifetime& lifetime);
  void ReportMove(HWND hwnd, const Message& message, WidgetEvents& events, Lifetime& lifetime);
  // The pointer is on the window, or on its frame: asks the system to tell when it leaves.
  // True when it was not there before.
  bool Enter(HWND hwnd, bool on_frame);
  // False when the pointer only went from the frame to the inside or back.
  bool Leave(HWND hwnd);

  const Capture capture_;
  bool inside_ = false;
  bool pressed_ = false;  // by the left button, which is still down
};

// Where a context menu is wanted, on the screen: at the pointer, or in the middle of the window
// when the keyboard asked for it.
[[nodiscard]] Point ContextMenuPlace(HWND hwnd, const Message& message);

}  // namespace platform::windows
