#include "tests/desktop/driver/input.h"

#include <initializer_list>
#include <vector>

#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/wait.h"
#include "tests/desktop/driver/windows_of.h"

namespace desktop {
namespace {

// The whole screen is 65536 wide and high; the middle of a pixel, so that no rounding reaches
// another one.
LONG Absolute(LONG pixel, int extent) { return ::MulDiv(2 * pixel + 1, 32768, extent); }

INPUT MouseInput(POINT at, DWORD buttons) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = Absolute(at.x, ::GetSystemMetrics(SM_CXSCREEN));
  input.mi.dy = Absolute(at.y, ::GetSystemMetrics(SM_CYSCREEN));
  input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | buttons;
  return input;
}

void Send(std::vector<INPUT> inputs) {
  const auto count = static_cast<UINT>(inputs.size());
  if (::SendInput(count, inputs.data(), sizeof(INPUT)) != count) {
    platform::windows::ThrowSystemError("SendInput", ::GetLastError());
  }
}

void Mouse(POINT at, std::initializer_list<DWORD> buttons) {
  std::vector<INPUT> inputs;
  for (const DWORD button : buttons) inputs.push_back(MouseInput(at, button));
  Send(inputs);
}

// The window of the thread of `window` that is being moved or sized; null when none is.
HWND MovingWindow(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &info);
  return info.hwndMoveSize;
}

// Moves the pointer, and waits until the window that follows it rests: a button that comes up
// before that would end the move where the window is.
void Pull(HWND window, POINT to) {
  constexpr double kRestMs = 150;
  RECT last = AreaOf(window);
  Mouse(to, {0});
  double since = SteadyMs();
  Await("the rest of what follows the pointer", [&] {
    const RECT now = AreaOf(window);
    if (::EqualRect(&now, &last) == FALSE) {
      last = now;
      since = SteadyMs();
    }
    return SteadyMs() - since > kRestMs;
  });
}

}  // namespace

void MoveMouse(POINT to) { Mouse(to, {0}); }
void PressLeft(POINT at) { Mouse(at, {0, MOUSEEVENTF_LEFTDOWN}); }
void ReleaseLeft(POINT at) { Mouse(at, {0, MOUSEEVENTF_LEFTUP}); }
void Click(POINT at) { Mouse(at, {0, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}); }

void ClickOn(HWND top, const wchar_t* control) {
  Await("the control " + platform::windows::FromWide(control),
        [&] { return ::IsWindowVisible(FindControl(top, control)) != FALSE; });
  Click(MiddleOf(AreaOf(FindControl(top, control))));
}

void DoubleClick(POINT at) {
  Mouse(at,
        {0, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP});
}

void RightClick(POINT at) { Mouse(at, {0, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP}); }

void PressKey(WORD key) {
  INPUT down{};
  down.type = INPUT_KEYBOARD;
  down.ki.wVk = key;
  INPUT up = down;
  up.ki.dwFlags = KEYEVENTF_KEYUP;
  Send({down, up});
}

void Type(std::string_view text) {
  for (const char letter : text) {
    PressKey(static_cast<WORD>(letter >= 'a' ? letter - 'a' + 'A' : letter));
  }
}

void Drag(HWND window, POINT from, POINT to) {
  MoveMouse(from);
  PressLeft(from);
  // A small step begins the move, and only then the rest: moves that come before it has begun
  // would be taken as one.
  const LONG step = to.x >= from.x ? 1 : -1;
  MoveMouse({from.x + step, from.y});
  if (!Comes([window] { return MovingWindow(window) != nullptr; })) {
    ReleaseLeft(from);
    platform::windows::ThrowSystemError("no move began at the mouse, GetGUIThreadInfo",
                                        ::GetLastError());
  }
  Pull(window, {(from.x + to.x) / 2, (from.y + to.y) / 2});
  Pull(window, to);
  ReleaseLeft(to);
  Await("the end of the move", [window] { return MovingWindow(window) == nullptr; });
}

}  // namespace desktop
