// The user's hands: mouse and keyboard, as the system takes them from the devices.
#pragma once

#include <initializer_list>
#include <string_view>

#include "tests/desktop/driver/win.h"

namespace desktop {

// Points are on the screen. All throw std::runtime_error when the system takes no input.

void MoveMouse(POINT to);
void Click(POINT at);
// The middle of a control that has published this name, once it is shown.
void ClickOn(HWND top, const wchar_t* control);
void DoubleClick(POINT at);
void RightClick(POINT at);
void Wheel(POINT at, int notches);
// Keys are the system's virtual ones.
void PressKey(int key);
// One after the other, and all up again.
void PressKeys(std::initializer_list<int> keys);
// Letters of any script.
void Type(std::string_view text);

// Takes a window by `from`, moves the pointer to `to` and lets go; for what follows the mouse as
// the system's own moving and sizing does.
void Drag(HWND window, POINT from, POINT to);

}  // namespace desktop
