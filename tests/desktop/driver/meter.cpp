#include "tests/desktop/driver/meter.h"

#include "platform/windows/system_handles.h"
#include "tests/desktop/driver/input.h"
#include "tests/desktop/driver/registry.h"
#include "tests/desktop/driver/wait.h"
#include "tests/desktop/driver/windows_of.h"
// Behind the system's own header, which it needs.
#include <shellapi.h>

namespace desktop {
Meter::Meter() {
  Await("the meter window", [this] {
    window_ = FindTop(program_.id(), L"T_frmBrisanto");
    return window_ != nullptr && Visible();
  });
  ::WaitForInputIdle(program_.process(), kAmpleMs);
}

bool Meter::OnTop() const {
  return (::GetWindowLongPtrW(window_, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

HWND Meter::graph() const { return FindControl(window_, L"_tlkInterMeter"); }
HWND Meter::line() const { return FindControl(window_, L"_tlkDLULMeter"); }

LONG Meter::Scaled(LONG design) const {
  return ::MulDiv(design, static_cast<int>(::GetDpiForWindow(window_)), 96);
}

OpenMenu Meter::Menu() {
  RightClick(MiddleOf(AreaOf(window_)));
  return OpenMenu(program_.id());
}

HWND Meter::AwaitForm(const wchar_t* form) const {
  HWND window = nullptr;
  Await("the window in the foreground", [&] {
    window = FindTop(program_.id(), form);
    return window != nullptr && ::IsWindowVisible(window) != FALSE &&
           ::GetForegroundWindow() == window;
  });
  return window;
}

HWND Meter::tray() const { return FindTop(program_.id(), L"TremoluxTray"); }

RECT Meter::TrayArea() const {
  // Looked up: Wine does not have it.
  const auto get = platform::windows::Function<decltype(&::Shell_NotifyIconGetRect)>(
      ::GetModuleHandleW(L"shell32.dll"), "Shell_NotifyIconGetRect");
  const NOTIFYICONIDENTIFIER icon{sizeof(icon), tray(), 1, {}};
  RECT area{};
  if (get != nullptr && SUCCEEDED(get(&icon, &area))) return area;
  // Under Wine the only icon is a window of its own, or stands at the right end of the taskbar.
  const HWND taskbar = ::FindWindowW(L"Shell_TrayWnd", nullptr);
  const HWND own = ::FindWindowExW(taskbar, nullptr, L"__wine_tray_icon", nullptr);
  area = AreaOf(own != nullptr ? own : taskbar);
  area.left = area.right - HeightOf(area);
  return area;
}

void AwaitScans(int scans) {
  // Each scan writes this value once, whatever its traffic.
  for (int scan = 0; scan < scans; ++scan) {
    Remove(kSettingsKey, "InfoMaxDL");
    Await("a scan", [] { return IsStored(kSettingsKey, "InfoMaxDL"); });
  }
}

}  // namespace desktop
