#include "bench/windows/openings.h"

#include <functional>
#include <memory>
#include <string>

#include "alerts/unit_BandWidthAlert.h"
#include "bench/windows/bare_controls.h"
#include "bench/windows/own_resources.h"
#include "display/images.h"
#include "display/titles/unit_AddTitlesForm.h"
#include "display/unit_AreYouSureForm.h"
#include "preferences/unit_SettingsForm.h"
#include "settings/unit_SecurityForm.h"
#include "stats/unit_ConnInfo.h"
#include "stats/unit_SpecificConnInfo.h"
#include "toolkit/about_box.h"

namespace bench {
namespace {

constexpr int kOpenings = 300;
// What the system keeps of fonts, brushes and the like is there after these.
constexpr int kFirstOpenings = 20;
// KiB; the heap takes memory from the system in pieces of this size.
constexpr double kPiece = 64;

struct Row {
  const wchar_t* form;
  const char* name;
  std::function<std::unique_ptr<toolkit::Form>()> make;
};

// What so many rounds of it leave, after the first few.
Resources Before(const std::function<void()>& round) {
  for (int opening = 0; opening < kFirstOpenings; ++opening) round();
  const Resources before;
  for (int opening = 0; opening < kOpenings; ++opening) round();
  return before;
}

double KiBOfBareWindows(PlayedMeter& meter, const BareControls& bare) {
  const Resources before = Before([&] {
    const HWND window = bare.Make();
    ::ShowWindow(window, SW_SHOWNOACTIVATE);
    meter.Paint();
    ::DestroyWindow(window);
    meter.Paint();
  });
  return static_cast<double>(PrivateBytes() - before.bytes) / 1024;
}

void Open(PlayedMeter& meter, const Row& row, Report& report) {
  report.Section(std::string(row.name) + ", opened and closed " + std::to_string(kOpenings) +
                 " times");
  std::unique_ptr<BareControls> bare;
  const Resources before = Before([&] {
    const auto window = row.make();
    window->Show();
    meter.Paint();
    if (!bare) bare = std::make_unique<BareControls>(row.form);
    window->Hide();
    meter.Paint();
  });
  const Resources after;
  const double bare_kib = KiBOfBareWindows(meter, *bare);
  report.Note("growth of private memory by the system's own windows", bare_kib, "KiB");
  ReportGrowth(before, after, bare_kib + kPiece, report);
}

}  // namespace

void OpenEveryWindow(PlayedMeter& meter, Report& report) {
  using std::make_unique;
  toolkit::Application& app = meter.App();
  const display::RunningMeter parts = meter.Parts();
  quantity::Quantity quantity(parts.store, app.Platform().locale);
  engine::TrafficState traffic;
  display::TitlePosting posting(app, parts.store);
  const stats::StatisticsContext statistics{app, parts.store, quantity, parts.language, traffic};
  const Row rows[] = {
      {L"T_frmConnInfo", "The statistics of the machine",
       [&] { return make_unique<stats::T_frmConnInfo>(statistics); }},
      {L"T_frmSpecificConnInfo", "The statistics of an adapter",
       [&] { return make_unique<stats::T_frmSpecificConnInfo>(statistics, "adapter 1"); }},
      {L"T_frmBandWidthAlert", "The bandwidth alert",
       [&] {
         return make_unique<alerts::T_frmBandWidthAlert>(app, parts.store, quantity,
                                                         parts.language);
       }},
      {L"T_frmAddTitles", "The editor of the window titles",
       [&] {
         return make_unique<display::T_frmAddTitles>(app, posting, parts.options.Parts().tray,
                                                     parts.language);
       }},
      {L"T_frmAreYouSure", "The exit question",
       [&] { return make_unique<display::T_frmAreYouSure>(app, parts.store, parts.language); }},
      {L"T_frmSecurity", "The password prompt",
       [&] { return make_unique<settings::T_frmSecurity>(app, parts.store, parts.language); }},
      {L"T_frmAbout", "The about box",
       [&] {
         return make_unique<toolkit::AboutBox>(app, display::kProgramImage,
                                               [] { return toolkit::AboutTexts{}; });
       }},
      {L"T_frmPreferences", "The preferences",
       [&] { return make_unique<preferences::T_frmPreferences>(app, parts); }},
  };
  for (const Row& row : rows) Open(meter, row, report);
}

}  // namespace bench
