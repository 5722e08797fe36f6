#include "platform/windows/dpi.h"
#include "platform/windows/drawing/gdi.h"
#include "platform/windows/services/services.h"

namespace platform::windows {
namespace {

BOOL CALLBACK Collect(HMONITOR monitor, HDC, LPRECT, LPARAM list) noexcept {
  try {
    reinterpret_cast<std::vector<HMONITOR>*>(list)->push_back(monitor);
  } catch (...) {
    return FALSE;  // out of memory: only the monitors found so far are listed
  }
  return TRUE;
}

Monitor Describe(HMONITOR monitor) {
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  if (!::GetMonitorInfoW(monitor, &info)) {
    // The monitor went away between the two calls.
    info.rcMonitor = {0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
    info.rcWork = info.rcMonitor;
  }
  return {FromRect(info.rcMonitor), FromRect(info.rcWork), DpiOfMonitor(monitor)};
}

}  // namespace

std::vector<Monitor> Screen::Monitors() {
  const HMONITOR primary = ::MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY);
  std::vector<HMONITOR> handles;
  ::EnumDisplayMonitors(nullptr, nullptr, &Collect, reinterpret_cast<LPARAM>(&handles));
  std::vector<Monitor> monitors{Describe(primary)};
  for (const HMONITOR handle : handles) {
    if (handle != primary) monitors.push_back(Describe(handle));
  }
  return monitors;
}

Monitor Screen::MonitorOf(const Rect& area) {
  const RECT rect = ToRect(area);
  return Describe(::MonitorFromRect(&rect, MONITOR_DEFAULTTONEAREST));
}

Colour Screen::Resolve(Colour colour) { return ToColorref(colour); }

Point Screen::Pointer() {
  POINT at{};
  ::GetCursorPos(&at);
  return FromPoint(at);
}

}  // namespace platform::windows
