// Turns mouse messages into reports.
#pragma once

#include "platform/widget.h"
#include "platform/windows/lifetime.h"
#include "platform/windows/windows/native_window.h"

namespace platform::windows {

// Who captures the mouse while the left button is down, so that the release of the button is
// reported wherever the pointer is.
enum class Capture {
  kHere,       // this object; the button pressed and released on the window is then a click
  kByControl,  // the system's control, which makes its own clicks
};

// Returns whether the message is about a button of the mouse. The release of the right button is
// left out: of that one the system makes the wish for a context menu.
[[nodiscard]] constexpr bool IsButtonMessage(UINT id) {
  return id >= WM_LBUTTONDOWN && id <= WM_MBUTTONDBLCLK && id != WM_RBUTTONUP;
}

class Mouse {
 public:
  explicit Mouse(Capture capture) : capture_(capture) {}

  // Reports a mouse message of the window and ignores other messages. The events may destroy the
  // object that `lifetime` and this Mouse belong to.
  void Report(HWND hwnd, const Message& message, WidgetEvents& events, Lifetime& lifetime);

 private:
  void ReportLeftUp(HWND hwnd, const Message& message, WidgetEvents& events, Lifetime& lifetime);
  void ReportMove(HWND hwnd, const Message& message, WidgetEvents& events, Lifetime& lifetime);
  // Notes that the pointer is on the window, or on its frame, and asks the system to tell when it
  // leaves. Returns true when the pointer was not there before.
  bool Enter(HWND hwnd, bool on_frame);
  // Notes that the pointer left. Returns false when it only went from the frame to the inside or
  // back.
  bool Leave(HWND hwnd);

  const Capture capture_;
  bool inside_ = false;
  bool pressed_ = false;  // by the left button, which is still down
};

// Returns the place on the screen for a context menu: at the pointer, or in the middle of the
// window when the menu was asked for with the keyboard.
[[nodiscard]] Point ContextMenuPlace(HWND hwnd, const Message& message);

}  // namespace platform::windows
