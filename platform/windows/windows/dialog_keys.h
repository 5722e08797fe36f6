// The keys of windows with a caption: Tab, Enter, Esc, marked letters, Ctrl+Tab, arrows. The window
// decides what they do.
//
// They are handled here, because the system's own (IsDialogMessage) sees the default button only
// among the direct children of a window, leaves tabs and radio groups to styles that the controls
// change themselves, and can loop for ever when the keyboard is in something that was hidden.
#pragma once

#include "platform/windows/win32.h"

namespace platform::windows {

// Returns whether a message from the queue was such a key; then it is done with.
[[nodiscard]] bool HandledAsDialogKey(const MSG& message);

// Returns whether the window, and all that it lies on, is visible and enabled.
[[nodiscard]] bool IsUsable(HWND hwnd);

// Puts the keyboard into a control, whose window hears of it.
void FocusOn(HWND control);

}  // namespace platform::windows
