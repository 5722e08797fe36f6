#include "bench/windows/preferences.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "bench/windows/bare_controls.h"
#include "bench/windows/timing.h"
#include "platform/windows/win32.h"
#include "preferences/unit_SettingsForm.h"
#include "tests/desktop/driver/preferences.h"

namespace bench {
namespace {

constexpr int kOpenings = 50;
// What the system keeps of fonts, brushes and the like is there after these.
constexpr int kFirstOpenings = 20;
constexpr double kLongestMs = 200;

// How long the system takes to make as many empty controls of the same kinds and sizes.
double MillisecondsOfBareControls(Report& report) {
  const BareControls controls(L"T_frmPreferences");
  HWND parent = nullptr;
  const double us = MicrosecondsOf([&] { parent = controls.Make(); });
  ::DestroyWindow(parent);
  report.Note("controls", static_cast<double>(controls.Count()), "");
  return us / 1000;
}

// The first showing of each page; the one that takes longest.
double MillisecondsOfTheSlowestPage(PlayedMeter& meter) {
  const HWND window = ::FindWindowW(L"T_frmPreferences", nullptr);
  double slowest_us = 0;
  for (int row = 0; row <= static_cast<int>(desktop::PageRow::kResetSettings); ++row) {
    slowest_us = std::max(slowest_us, MicrosecondsOf([&] {
                            desktop::ChoosePage(window, static_cast<desktop::PageRow>(row));
                            meter.Paint();
                          }));
  }
  return slowest_us / 1000;
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
  report.AtMost("the first showing of the slowest page", MillisecondsOfTheSlowestPage(meter), "ms",
                kLongestMs);
  close();
  for (int opening = 0; opening < kFirstOpenings; ++opening) {
    open_ms();
    close();
  }
  std::vector<double> times;
  for (int opening = 0; opening < kOpenings; ++opening) {
    times.push_back(open_ms());
    close();
  }
  report.AtMost("a later one, the lower quartile", Undisturbed(times), "ms", kLongestMs);
}

}  // namespace bench
