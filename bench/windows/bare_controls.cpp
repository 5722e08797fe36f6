#include "bench/windows/bare_controls.h"

#include <algorithm>
#include <string_view>

#include "tests/desktop/driver/windows_of.h"

namespace bench {

BareControls::BareControls(const wchar_t* form) {
  const HWND window = desktop::FindTop(::GetCurrentProcessId(), form);
  copied_.push_back(window);
  ::EnumChildWindows(window, &Collect, reinterpret_cast<LPARAM>(this));
}

BOOL CALLBACK BareControls::Collect(HWND window, LPARAM self) {
  auto& all = *reinterpret_cast<BareControls*>(self);
  const HWND parent = ::GetAncestor(window, GA_PARENT);
  const auto found = std::find(all.copied_.begin(), all.copied_.end(), parent);
  wchar_t name[64] = {};
  ::GetClassNameW(window, name, 64);
  const std::wstring_view window_class = name;
  // A list makes its header itself, and so do other controls their parts.
  if (window_class == L"SysHeader32" || found == all.copied_.end()) return TRUE;
  wchar_t text[256] = {};
  ::GetWindowTextW(window, text, 256);
  RECT area{};
  ::GetWindowRect(window, &area);
  ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&area), 2);
  const bool is_ours = window_class.starts_with(L"Tremolux");
  const auto parent_number = static_cast<std::size_t>(found - all.copied_.begin());
  all.copied_.push_back(window);
  all.controls_.push_back(
      {is_ours ? L"STATIC" : name, text, static_cast<DWORD>(::GetWindowLongW(window, GWL_STYLE)),
       static_cast<DWORD>(::GetWindowLongW(window, GWL_EXSTYLE)), area, parent_number});
  return TRUE;
}

HWND BareControls::Make() const {
  std::vector<HWND> made;
  made.push_back(::CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_CAPTION, 0, 0, 640, 480,
                                   nullptr, nullptr, nullptr, nullptr));
  for (const Control& control : controls_) {
    const RECT& area = control.area;
    made.push_back(::CreateWindowExW(control.extended_style, control.window_class.c_str(),
                                     control.text.c_str(), control.style, area.left, area.top,
                                     area.right - area.left, area.bottom - area.top,
                                     made[control.parent], nullptr, nullptr, nullptr));
  }
  return made.front();
}

}  // namespace bench
