// A user's hands on the real system's controls.
#pragma once

#include <string_view>

#include "platform/message_loop.h"
#include "platform/widget.h"
#include "platform/windows/win32.h"

namespace contract {

// The window of this thread that is of the class `name`, or is a widget of that name; throws
// std::out_of_range when there is none.
[[nodiscard]] HWND Find(std::string_view name);

// What they do goes through the window procedures and the queue as the user's own doings would.
class Hands {
 public:
  explicit Hands(platform::MessageLoop& loop) : loop_(loop) {}

  void Click(HWND hwnd, platform::Point at);

  void Press(std::string_view name);
  void Type(std::string_view name, std::string_view text);
  void PressKey(std::string_view name, platform::Key key);
  void Wheel(std::string_view name, int notches);
  void Choose(std::string_view name, int index);
  void Tick(std::string_view name, int row);
  void Drag(std::string_view name, int position);

  // A key for whatever of the window has the keyboard.
  void PressIn(std::string_view window, int key, bool shift = false, bool ctrl = false);
  void PressAlt(std::string_view window, char letter);

 private:
  // The window, when the user can reach it; else null.
  [[nodiscard]] static HWND Reach(std::string_view name);
  // Posts a message and has it delivered.
  void Post(HWND hwnd, UINT message, WPARAM w, LPARAM l = 0);
  static HWND FocusIn(std::string_view window);

  platform::MessageLoop& loop_;
};

}  // namespace contract
