#include "tests/desktop/driver/windows_of.h"

#include "platform/windows/wide_text.h"

namespace desktop {
namespace {

struct TopSearch {
  DWORD process;
  std::vector<HWND> found;
};

BOOL CALLBACK CollectTop(HWND window, LPARAM search_pointer) {
  auto& search = *reinterpret_cast<TopSearch*>(search_pointer);
  DWORD process = 0;
  ::GetWindowThreadProcessId(window, &process);
  if (process == search.process) search.found.push_back(window);
  return TRUE;
}

std::vector<HWND> Tops(DWORD process) {
  TopSearch search{process, {}};
  ::EnumWindows(&CollectTop, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

bool HasClass(HWND window, std::wstring_view name) {
  wchar_t window_class[256] = {};
  ::GetClassNameW(window, window_class, 256);
  return name == window_class;
}

struct ControlSearch {
  const wchar_t* name;
  HWND found = nullptr;
};

BOOL CALLBACK LookForControl(HWND window, LPARAM search_pointer) {
  auto& search = *reinterpret_cast<ControlSearch*>(search_pointer);
  if (::GetPropW(window, search.name) != nullptr) search.found = window;
  return search.found == nullptr;
}

}  // namespace

HWND FindTop(DWORD process, const wchar_t* window_class) {
  for (const HWND window : Tops(process)) {
    if (HasClass(window, window_class)) return window;
  }
  return nullptr;
}

std::vector<HWND> VisibleTops(DWORD process) {
  std::vector<HWND> visible;
  for (const HWND window : Tops(process)) {
    if (::IsWindowVisible(window) != FALSE) visible.push_back(window);
  }
  return visible;
}

HWND FindControl(HWND top, const wchar_t* name) {
  ControlSearch search{name};
  ::EnumChildWindows(top, &LookForControl, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

std::string TextOf(HWND window) {
  // Asked of the window itself: GetWindowText gives the text of another program's controls only
  // where they keep it in the usual place.
  std::wstring text(1024, L'\0');
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
