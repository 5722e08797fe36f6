// Lies in the program that is tested, brought there by a hook, and reads its menus.
#include "tests/desktop/spy/menu_spy.h"

#include <sstream>
#include <string>

#include "platform/windows/win32.h"

namespace {

void Tell(HMENU menu, const std::wstring& path, std::wostream& told) {
  const int count = ::GetMenuItemCount(menu);
  for (int position = 0; position < count; ++position) {
    wchar_t label[256] = {};
    MENUITEMINFOW item{};
    item.cbSize = sizeof(item);
    item.fMask = MIIM_STATE | MIIM_SUBMENU | MIIM_STRING;
    item.dwTypeData = label;
    item.cch = 256;
    ::GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &item);
    const std::wstring text = std::wstring(label, ::wcscspn(label, L"\t"));  // without its keys
    if (text.empty()) continue;                                              // a separator
    RECT area{};
    ::GetMenuItemRect(nullptr, menu, static_cast<UINT>(position), &area);
    told << ((item.fState & MFS_CHECKED) != 0) << ' ' << area.left << ' ' << area.top << ' '
         << area.right << ' ' << area.bottom << path << L'\t' << text << L'\n';
    Tell(item.hSubMenu, path + L'\t' + text, told);
  }
}

}  // namespace

// Sees each message sent to a window of the program.
extern "C" __declspec(dllexport) LRESULT CALLBACK SpyOnMenu(int code, WPARAM w, LPARAM l) {
  static const UINT kAsk = ::RegisterWindowMessageW(desktop::kSpyMessage);
  const auto& message = *reinterpret_cast<const CWPSTRUCT*>(l);
  if (code == HC_ACTION && message.message == kAsk) {
    constexpr UINT kGetMenu = 0x01E1;  // MN_GETHMENU
    std::wostringstream told;
    Tell(reinterpret_cast<HMENU>(::SendMessageW(message.hwnd, kGetMenu, 0, 0)), {}, told);
    ::SendMessageW(reinterpret_cast<HWND>(message.wParam), WM_SETTEXT, 0,
                   reinterpret_cast<LPARAM>(told.str().c_str()));
  }
  return ::CallNextHookEx(nullptr, code, w, l);
}
