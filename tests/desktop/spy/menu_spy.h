// How the spy in the program tells what it sees in an open menu. A menu belongs to its process, and
// under Wine no other process can read it.
#pragma once

#include "platform/windows/win32.h"

namespace desktop {

inline constexpr wchar_t kSpyModule[] = L"menu_spy.dll";
inline constexpr char kSpyProcedure[] = "SpyOnMenu";
// Sent to a menu's window; the answer is in the shared memory then.
inline constexpr wchar_t kSpyMessage[] = L"TremoluxSpyOnMenu";
inline constexpr wchar_t kSpyMemory[] = L"TremoluxSpiedMenu";

struct SpiedItem {
  RECT area;      // on the screen
  UINT state;     // MFS_...
  HMENU submenu;  // null: an item without one
  wchar_t text[256];
};

struct SpiedMenu {
  static constexpr int kRoom = 64;
  int count;  // -1: not answered
  SpiedItem items[kRoom];
};

}  // namespace desktop
