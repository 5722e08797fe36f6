#include "preferences/bandwidth_alert_page.h"

#include <string>
#include <vector>

namespace preferences {
namespace {

namespace setting = settings::setting;

constexpr int kDays = 31;
constexpr Range kLimit{1, 2100000000};

}  // namespace

BandwidthAlertPage::BandwidthAlertPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "BandwidthAlert", context) {
  constexpr FieldColumn kFields{kMargin + kRow + 4, 156};
  constexpr FieldColumn kLower{kFields.top + 4, kFields.label_width};
  constexpr int kLeft = kFields.FieldLeft();
  constexpr int kNumberWidth = 116;
  constexpr int kUnitLeft = kLeft + kNumberWidth + kMargin;
  constexpr int kHalf = 120;
  constexpr int kDirections = kFields.Top(3) + 2;
  std::vector<std::string> days;
  for (int day = 1; day <= kDays; ++day) days.push_back(std::to_string(day));
  mPerStartsOn.SetItems(days);
  const auto enable = [this] { EnablePlayControls(); };
  // Where nothing is stored the box stays as it is.
  const auto play = [this] {
    return settings::BooleanSetting{setting::chkBAPlay.name, chkBAPlay.Checked()};
  };
  Add(ReadStep::kBandwidthAlert,
      {
          {BAAlertsCheckBox, Line(kMargin), setting::BAAlerts, enable},
          {mPerStartsOn, kFields.At(0, kNumberWidth), setting::mPerStartsOn},
          {wPerStartsOn, kFields.At(1), setting::wPerStartsOn, Items{"WeekDay"}},
          {AlertsMoreThan,
           {kUnitLeft, kFields.Top(2), kPageWidth - kMargin - kUnitLeft, kFieldHeight},
           setting::AlertsMoreThan,
           Items{"LimitUnit"}},
          {MoreThan, kFields.At(2, kNumberWidth), setting::MoreThan, kLimit},
          {cmbDayWeekMonth, kFields.At(4, kNumberWidth), setting::BADayWeekMonth, Items{"Period"}},
          {baDownload, {kLeft, kDirections, kHalf, kBoxHeight}, setting::baDownload},
          {baUpload, {kLeft + kHalf, kDirections, kHalf, kBoxHeight}, setting::baUpload},
          {chkBAPlay, Line(kLower.Top(5) + 2), play, enable},
          {sound_, {kMargin, kFields.Top(6) + 2, kWidth, kFieldHeight}, setting::BaPlayFile},
          {action_.action, kLower.At(7), setting::BAAction, Items{"Action"},
           [this] { action_.ShowMessage(); }},
          {action_.message, kLower.At(8), setting::BAMessage},
      });
  EnablePlayControls();
}

void BandwidthAlertPage::Localise(const language::Translation& say) {
  Page::Localise(say);
  action_.Localise(say);
}

void BandwidthAlertPage::EnablePlayControls() {
  sound_.SetEnabled(BAAlertsCheckBox.Checked() && chkBAPlay.Checked());
}

}  // namespace preferences
