// The keys of windows with a caption: Tab, Enter, Esc, marked letters, Ctrl+Tab, arrows among radio
// buttons.
//
// By hand, because the system's own (IsDialogMessage) sees the default button only among the direct
// children of a window, leaves tabs and radio groups to styles that the controls change themselves,
// and can loop for ever when the keyboard is in something that was hidden.
#pragma once

#include "platform/windows/win32.h"

namespace platform::windows {

// Whether a message from the queue was such a key; then it is done with.
[[nodiscard]] bool HandledAsDialogKey(const MSG& message);

// Whether the window, and all that it lies on, is visible and enabled.
[[nodiscard]] bool IsUsable(HWND hwnd);

// Puts the keyboard into a control, whose window hears of it.
void FocusOn(HWND control);

// Puts the keyboard into the first control of a top window.
void FocusFirst(HWND top);

// Before `leaving` is hidden or disabled: if the keyboard is in it, the control that follows gets
// it.
void PassFocusOn(HWND leaving);

// The push buttons of the window that `inside` is in, as they look: what Enter presses has the
// thick frame, which is the one with the keyboard or else the default one.
void ShowWhatEnterPresses(HWND inside);

}  // namespace platform::windows
