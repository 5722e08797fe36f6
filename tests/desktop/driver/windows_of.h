// Finding the windows of a program from outside.
#pragma once

#include <string>
#include <vector>

#include "tests/desktop/driver/win.h"

namespace desktop {

// The top window of a process that has this class; null when there is none.
[[nodiscard]] HWND FindTop(DWORD process, const wchar_t* window_class);
// All visible top windows of a process, uppermost first.
[[nodiscard]] std::vector<HWND> VisibleTops(DWORD process);
// All controls inside `top`, hidden ones too.
[[nodiscard]] std::vector<HWND> ControlsIn(HWND top);
// The control that has published this name, somewhere inside `top`; null when there is none.
[[nodiscard]] HWND FindControl(HWND top, const wchar_t* name);

// What the thread of a window does: moving, in a menu, where the keyboard is.
[[nodiscard]] GUITHREADINFO GuiOf(HWND window);
[[nodiscard]] bool HasClass(HWND window, const wchar_t* name);
[[nodiscard]] std::string TextOf(HWND window);
[[nodiscard]] RECT AreaOf(HWND window);  // on the screen
[[nodiscard]] POINT MiddleOf(const RECT& area);
[[nodiscard]] LONG WidthOf(const RECT& area);
[[nodiscard]] LONG HeightOf(const RECT& area);

}  // namespace desktop
