#include "tests/desktop/driver/input.h"

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

INPUT MouseInput(POINT at, DWORD buttons, int turn = 0) {
  return {.type = INPUT_MOUSE,
          .mi = {Absolute(at.x, ::GetSystemMetrics(SM_CXSCREEN)),
                 Absolute(at.y, ::GetSystemMetrics(SM_CYSCREEN)), static_cast<DWORD>(turn),
                 MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | buttons, 0, 0}};
}

INPUT KeyInput(WORD key, WORD scan_code, DWORD flags) {
  return {.type = INPUT_KEYBOARD, .ki = {key, scan_code, flags, 0, 0}};
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

void Wheel(POINT at, int notches) {
  Send({MouseInput(at, MOUSEEVENTF_WHEEL, notches * WHEEL_DELTA)});
}

void PressKey(int key) { PressKeys({key}); }

void PressKeys(std::initializer_list<int> keys) {
  std::vector<INPUT> inputs;
  for (const DWORD flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
    for (const int key : keys) inputs.push_back(KeyInput(static_cast<WORD>(key), 0, flags));
  }
  Send(inputs);
}

void Type(std::string_view text) {
  std::vector<INPUT> inputs;
  for (const wchar_t unit : platform::windows::ToWide(text)) {
    inputs.push_back(KeyInput(0, unit, KEYEVENTF_UNICODE));
    inputs.push_back(KeyInput(0, unit, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP));
  }
  Send(inputs);
}

void Drag(HWND window, POINT from, POINT to) {
  Mouse(from, {0, MOUSEEVENTF_LEFTDOWN});
  // A small step begins the move, and only then the rest: moves that come before it has begun
  // would be taken as one.
  const LONG step = to.x >= from.x ? 1 : -1;
  MoveMouse({from.x + step, from.y});
  Await("a move", [window] { return GuiOf(window).hwndMoveSize != nullptr; });
  Pull(window, {(from.x + to.x) / 2, (from.y + to.y) / 2});
  Pull(window, to);
  Mouse(to, {MOUSEEVENTF_LEFTUP});
  Await("the end of the move", [window] { return GuiOf(window).hwndMoveSize == nullptr; });
}

}  // namespace desktop
