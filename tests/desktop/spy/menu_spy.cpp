// Lies in the program that is tested, brought there by a hook, and reads its menus.
#include "tests/desktop/spy/menu_spy.h"

#include <algorithm>

namespace {

using desktop::SpiedItem;
using desktop::SpiedMenu;

void Read(HMENU menu, int position, SpiedItem& spied) {
  MENUITEMINFOW item{};
  item.cbSize = sizeof(item);
  item.fMask = MIIM_STATE | MIIM_SUBMENU | MIIM_STRING;
  item.dwTypeData = spied.text;
  item.cch = 256;
  ::GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &item);
  spied.state = item.fState;
  spied.submenu = item.hSubMenu;
  ::GetMenuItemRect(nullptr, menu, static_cast<UINT>(position), &spied.area);
}

void Read(HMENU menu, SpiedMenu& spied) {
  const int count = std::min(::GetMenuItemCount(menu), SpiedMenu::kRoom);
  for (int position = 0; position < count; ++position) Read(menu, position, spied.items[position]);
  spied.count = count;
}

void Answer(HWND menu_window) {
  constexpr UINT kGetMenu = 0x01E1;  // MN_GETHMENU
  const HANDLE memory = ::OpenFileMappingW(FILE_MAP_WRITE, FALSE, desktop::kSpyMemory);
  if (memory == nullptr) return;
  void* view = ::MapViewOfFile(memory, FILE_MAP_WRITE, 0, 0, sizeof(SpiedMenu));
  if (view != nullptr) {
    const LRESULT menu = ::SendMessageW(menu_window, kGetMenu, 0, 0);
    Read(reinterpret_cast<HMENU>(menu), *static_cast<SpiedMenu*>(view));
    ::UnmapViewOfFile(view);
  }
  ::CloseHandle(memory);
}

}  // namespace

// Sees each message sent to a window of the program.
extern "C" __declspec(dllexport) LRESULT CALLBACK SpyOnMenu(int code, WPARAM w, LPARAM l) {
  static const UINT ask = ::RegisterWindowMessageW(desktop::kSpyMessage);
  if (code == HC_ACTION) {
    const auto& message = *reinterpret_cast<const CWPSTRUCT*>(l);
    if (message.message == ask) Answer(message.hwnd);
  }
  return ::CallNextHookEx(nullptr, code, w, l);
}
