#include "bench/windows/preferences.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bench/windows/own_resources.h"
#include "bench/windows/timing.h"
#include "platform/windows/win32.h"
#include "preferences/unit_SettingsForm.h"
#include "tests/desktop/driver/windows_of.h"

namespace bench {
namespace {

constexpr int kOpenings = 200;
// What the system keeps of fonts, brushes and the like is there after these.
constexpr int kFirstOpenings = 20;
constexpr double kLongestMs = 200;

// A control of the system's own, as the preferences have it.
struct BareControl {
  std::wstring window_class;
  DWORD style;
  DWORD extended_style;
  RECT area;
};

BOOL CALLBACK Collect(HWND window, LPARAM controls) {
  wchar_t name[64] = {};
  ::GetClassNameW(window, name, 64);
  const std::wstring_view window_class = name;
  // A list makes its header itself.
  if (window_class == L"SysHeader32") return TRUE;
  RECT area{};
  ::GetWindowRect(window, &area);
  const bool is_ours = window_class.starts_with(L"Tremolux");
  reinterpret_cast<std::vector<BareControl>*>(controls)->push_back(
      {is_ours ? L"STATIC" : name, static_cast<DWORD>(::GetWindowLongW(window, GWL_STYLE)),
       static_cast<DWORD>(::GetWindowLongW(window, GWL_EXSTYLE)), area});
  return TRUE;
}

// How long the system takes to make as many empty controls of the same kinds and sizes.
double MillisecondsOfBareControls(Report& report) {
  std::vector<BareControl> controls;
  ::EnumChildWindows(desktop::FindTop(::GetCurrentProcessId(), L"T_frmPreferences"), &Collect,
                     reinterpret_cast<LPARAM>(&controls));
  HWND parent = nullptr;
  const double us = MicrosecondsOf([&] {
    parent = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 640, 480, nullptr, nullptr,
                               nullptr, nullptr);
    for (const BareControl& control : controls) {
      const RECT& area = control.area;
      ::CreateWindowExW(control.extended_style, control.window_class.c_str(), L"", control.style,
                        area.left, area.top, area.right - area.left, area.bottom - area.top, parent,
                        nullptr, nullptr, nullptr);
    }
  });
  ::DestroyWindow(parent);
  report.Note("controls", static_cast<double>(controls.size()), "");
  return us / 1000;
}

}  // namespace

void OpenPreferences(PlayedMeter& meter, Report& report) {
  using preferences::T_frmPreferences;
  std::optional<T_frmPreferences> window;
  const auto open_ms = [&] {
    return MicrosecondsOf([&] {
             if (!window) window.emplace(meter.App(), meter.Parts());
             window->Open();
             meter.Paint();
           }) /
           1000;
  };
  const auto close = [&] {
    window->Close();
    meter.Paint();
  };
  report.Section("The preferences, until they are painted");
  const double first_ms = open_ms();
  report.Note("the system makes as many empty controls in", MillisecondsOfBareControls(report),
              "ms");
  report.AtMost("the first opening", first_ms, "ms", kLongestMs);
  close();
  for (int opening = 0; opening < kFirstOpenings; ++opening) {
    open_ms();
    close();
  }
  const Resources before;
  std::vector<double> times;
  for (int opening = 0; opening < kOpenings; ++opening) {
    times.push_back(open_ms());
    close();
  }
  report.AtMost("a later one, the lower quartile", Undisturbed(times), "ms", kLongestMs);
  report.Note("openings and closings", kOpenings, "");
  ReportGrowth(before, report);
}

}  // namespace bench
