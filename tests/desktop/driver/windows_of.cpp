#include "tests/desktop/driver/windows_of.h"

#include "platform/windows/wide_text.h"

namespace desktop {
namespace {

BOOL CALLBACK Collect(HWND window, LPARAM found) {
  reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
  return TRUE;
}

std::vector<HWND> Tops(DWORD process) {
  std::vector<HWND> tops;
  ::EnumWindows(&Collect, reinterpret_cast<LPARAM>(&tops));
  std::erase_if(tops, [process](HWND window) {
    DWORD owner = 0;
    ::GetWindowThreadProcessId(window, &owner);
    return owner != process;
  });
  return tops;
}

}  // namespace

HWND FindTop(DWORD process, const wchar_t* window_class) {
  for (const HWND window : Tops(process)) {
    if (HasClass(window, window_class)) return window;
  }
  return nullptr;
}

std::vector<HWND> VisibleTops(DWORD process) {
  std::vector<HWND> visible = Tops(process);
  std::erase_if(visible, [](HWND window) { return ::IsWindowVisible(window) == FALSE; });
  return visible;
}

std::vector<HWND> ControlsIn(HWND top) {
  std::vector<HWND> controls;
  ::EnumChildWindows(top, &Collect, reinterpret_cast<LPARAM>(&controls));
  return controls;
}

HWND FindControl(HWND top, const wchar_t* name) {
  for (const HWND control : ControlsIn(top)) {
    if (::GetPropW(control, name) != nullptr) return control;
  }
  return nullptr;
}

GUITHREADINFO GuiOf(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &info);
  return info;
}

bool HasClass(HWND window, const wchar_t* name) {
  wchar_t window_class[256] = {};
  ::GetClassNameW(window, window_class, 256);
  return ::lstrcmpiW(name, window_class) == 0;
}

std::string TextOf(HWND window) {
  // Asked of the window itself: GetWindowText gives the text of another program's controls only
  // where they keep it in the usual place.
  std::wstring text(16384, L'\0');
  const LRESULT length =
      ::SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(length));
  return platform::windows::FromWide(text);
}

RECT AreaOf(HWND window) {
  RECT area{};
  ::GetWindowRect(window, &area);
  return area;
}

POINT MiddleOf(const RECT& area) {
  return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

LONG WidthOf(const RECT& area) { return area.right - area.left; }
LONG HeightOf(const RECT& area) { return area.bottom - area.top; }

}  // namespace desktop
