// A whole machine in memory: every service that the program uses, and what tests see of it.
#pragma once

#include "platform/memory/canvas.h"
#include "platform/memory/clipboard.h"
#include "platform/memory/clock.h"
#include "platform/memory/files.h"
#include "platform/memory/fonts.h"
#include "platform/memory/hot_keys.h"
#include "platform/memory/interface_table.h"
#include "platform/memory/keyboard.h"
#include "platform/memory/locale.h"
#include "platform/memory/menus.h"
#include "platform/memory/message_loop.h"
#include "platform/memory/notebook.h"
#include "platform/memory/notification_area.h"
#include "platform/memory/other_windows.h"
#include "platform/memory/registry.h"
#include "platform/memory/screen.h"
#include "platform/memory/session.h"
#include "platform/memory/shell.h"
#include "platform/memory/single_instance.h"
#include "platform/memory/sockets.h"
#include "platform/memory/sound.h"
#include "platform/memory/system_dialogs.h"
#include "platform/memory/timers.h"
#include "platform/memory/windowing.h"
#include "platform/platform.h"

namespace platform::memory {

// Tests use the services directly; the program under test gets them through their interfaces.
class Machine {
 public:
  Notebook notebook;  // first: the services write into it

  InterfaceTable interface_table{notebook};
  Registry registry{notebook};
  Sockets sockets{notebook};
  SingleInstance single_instance{notebook};
  Clock clock;
  Files files{notebook};
  Locale locale;
  Clipboard clipboard{notebook};
  Screen screen;
  Graphics graphics{notebook, screen};
  Windowing windowing{screen};
  Menus menus;
  Timers timers{clock};
  MessageLoop message_loop;
  NotificationArea notification_area{screen};
  Sound sound;
  Keyboard keyboard;
  Session session;
  OtherWindows other_windows{windowing, clock};
  HotKeys hot_keys;
  Shell shell{files};
  Fonts fonts;
  SystemDialogs system_dialogs{message_loop};

  [[nodiscard]] platform::Platform& Platform() { return platform_; }

  // Ends the program's process, so that another one may start.
  void EndProcess() {
    single_instance.EndProcess();
    message_loop.Restart();
  }

 private:
  platform::Platform platform_{
      interface_table, registry, sockets, clock,         files,    locale,   clipboard,
      windowing,       menus,    timers,  message_loop,  screen,   graphics, notification_area,
      sound,           keyboard, session, other_windows, hot_keys, shell,    fonts,
      system_dialogs};
};

}  // namespace platform::memory
