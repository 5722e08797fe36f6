// The real machine: every service of Windows that the program uses.
#pragma once

#include "platform/platform.h"
#include "platform/windows/drawing/drawing.h"
#include "platform/windows/drawing/graphics.h"
#include "platform/windows/services/hot_keys.h"
#include "platform/windows/services/message_loop.h"
#include "platform/windows/services/notification_area.h"
#include "platform/windows/services/services.h"
#include "platform/windows/services/system_dialogs.h"
#include "platform/windows/services/timers.h"
#include "platform/windows/windows/menus.h"
#include "platform/windows/windows/windowing.h"

namespace platform::windows {

// A machine is made and used on one thread, and only one exists at a time: its window classes
// belong to the process.
class Machine {
 public:
  // Throws std::runtime_error when the system refuses to make a window.
  Machine() = default;
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;

  [[nodiscard]] Platform& platform() { return platform_; }

 private:
  InterfaceTable interface_table_;
  Registry registry_;
  Sockets sockets_;
  Clock clock_;
  Files files_;
  Locale locale_;
  Clipboard clipboard_;
  Screen screen_;
  MessageLoop message_loop_;
  Drawing drawing_;  // before the members that draw
  Graphics graphics_{drawing_.fonts};
  Timers timers_;
  Windowing windowing_{drawing_};
  Menus menus_{drawing_};
  NotificationArea notification_area_;
  Sound sound_;
  Keyboard keyboard_;
  Session session_;
  OtherWindows other_windows_;
  HotKeys hot_keys_;
  Shell shell_;
  Fonts fonts_;
  SystemDialogs system_dialogs_;
  Platform platform_{interface_table_, registry_,
                     sockets_,         clock_,
                     files_,           locale_,
                     clipboard_,       windowing_,
                     menus_,           timers_,
                     message_loop_,    screen_,
                     graphics_,        notification_area_,
                     sound_,           keyboard_,
                     session_,         other_windows_,
                     hot_keys_,        shell_,
                     fonts_,           system_dialogs_};
};

// What the process begins with. The program defines this function; it returns the exit code.
int Main();

}  // namespace platform::windows
