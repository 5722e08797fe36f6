// All Windows services that the program uses. They are handed down by reference; none is global.
#pragma once

#include "platform/canvas.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/fonts.h"
#include "platform/hot_keys.h"
#include "platform/interface_table.h"
#include "platform/keyboard.h"
#include "platform/locale.h"
#include "platform/menus.h"
#include "platform/message_loop.h"
#include "platform/notification_area.h"
#include "platform/other_windows.h"
#include "platform/registry.h"
#include "platform/screen.h"
#include "platform/session.h"
#include "platform/shell.h"
#include "platform/sockets.h"
#include "platform/sound.h"
#include "platform/system_dialogs.h"
#include "platform/timers.h"
#include "platform/windowing.h"

namespace platform {

// References to the services, which outlive this object.
struct Platform {
  InterfaceTable& interface_table;
  Registry& registry;
  Sockets& sockets;
  Clock& clock;
  Files& files;
  Locale& locale;
  Clipboard& clipboard;
  Windowing& windowing;
  Menus& menus;
  Timers& timers;
  MessageLoop& message_loop;
  Screen& screen;
  Graphics& graphics;
  NotificationArea& notification_area;
  Sound& sound;
  Keyboard& keyboard;
  Session& session;
  OtherWindows& other_windows;
  HotKeys& hot_keys;
  Shell& shell;
  Fonts& fonts;
  SystemDialogs& system_dialogs;
};

}  // namespace platform
