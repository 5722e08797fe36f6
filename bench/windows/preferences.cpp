#include "bench/windows/preferences.h"

#include <optional>
#include <vector>

#include "bench/windows/own_resources.h"
#include "bench/windows/timing.h"
#include "settings/preferences/unit_SettingsForm.h"

namespace bench {
namespace {

constexpr int kOpenings = 200;
// What the system keeps of fonts, brushes and the like is there after these.
constexpr int kFirstOpenings = 20;
constexpr double kLongestMs = 200;

}  // namespace

void OpenPreferences(PlayedMeter& meter, Report& report) {
  using settings::preferences::T_frmPreferences;
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
  report.AtMost("the first opening", open_ms(), "ms", kLongestMs);
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
