#include "preferences/bandwidth_alert_page.h"

#include <string>
#include <vector>

#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

using Meter = display::RunningMeter;

constexpr std::int64_t kHighestLimit = 2100000000;
constexpr int kDays = 31;

}  // namespace

BandwidthAlertPage::BandwidthAlertPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "BandwidthAlert", context),
      BAAlertsCheckBox(*this, "BAAlertsCheckBox"),
      lblMPerStartsOn(*this, "lblMPerStartsOn", toolkit::kCaptionText),
      mPerStartsOn(*this, "mPerStartsOn"),
      lblWPerStartsOn(*this, "lblWPerStartsOn", toolkit::kCaptionText),
      wPerStartsOn(*this, "wPerStartsOn"),
      lblMoreThan(*this, "lblMoreThan", toolkit::kCaptionText),
      MoreThan(*this, "MoreThan"),
      AlertsMoreThan(*this, "AlertsMoreThan"),
      baDownload(*this, "baDownload"),
      baUpload(*this, "baUpload"),
      lblDayWeekMonth(*this, "lblDayWeekMonth", toolkit::kCaptionText),
      cmbDayWeekMonth(*this, "cmbDayWeekMonth"),
      chkBAPlay(*this, "chkBAPlay"),
      sound_(*this, {"BaPlayFile", "BaSpeedbtn", "BaSpeedbtn2"}),
      action_(*this, {text::lblBaAction, "BaAction", text::lblBaMessage, "BaMessage"}),
      options_(context) {
  PlaceControls();
  MoreThan.SetRange(1, kHighestLimit, 1);
  std::vector<std::string> days;
  for (int day = 1; day <= kDays; ++day) days.push_back(std::to_string(day));
  mPerStartsOn.SetItems(days);
  ConnectHandlers();
  EnablePlayControls();
}

void BandwidthAlertPage::PlaceControls() {
  constexpr int kNumberWidth = 116;
  constexpr int kHalf = 120;
  constexpr FieldColumn kFields{kMargin + kRow + 4, 156};
  constexpr FieldColumn kLower{kFields.top + 4, kFields.label_width};
  constexpr int kLeft = kFields.FieldLeft();
  constexpr int kUnitLeft = kLeft + kNumberWidth + kMargin;
  toolkit::ApplyLayout({
      {BAAlertsCheckBox, {kMargin, kMargin, kWidth, kBoxHeight}},
      {lblMPerStartsOn, kFields.Label(0)},
      {mPerStartsOn, kFields.Field(0, kNumberWidth)},
      {lblWPerStartsOn, kFields.Label(1)},
      {wPerStartsOn, kFields.Field(1, kFields.FieldWidth())},
      {lblMoreThan, kFields.Label(2)},
      {MoreThan, kFields.Field(2, kNumberWidth)},
      {AlertsMoreThan,
       {kUnitLeft, kFields.Field(2, 0).top, kPageWidth - kMargin - kUnitLeft, kFieldHeight}},
      {baDownload, {kLeft, kFields.Label(3).top, kHalf, kBoxHeight}},
      {baUpload, {kLeft + kHalf, kFields.Label(3).top, kHalf, kBoxHeight}},
      {lblDayWeekMonth, kFields.Label(4)},
      {cmbDayWeekMonth, kFields.Field(4, kNumberWidth)},
      {chkBAPlay, {kMargin, kLower.Label(5).top, kWidth, kBoxHeight}},
  });
  sound_.Place({kMargin, kFields.Label(6).top, kWidth, kFieldHeight});
  action_.Place(kLower, 7);
}

void BandwidthAlertPage::ConnectHandlers() {
  options_.Connect({
      {BAAlertsCheckBox, setting::BAAlerts,
       [this](const Meter& /*m*/, bool /*on*/) { EnablePlayControls(); }},
      {mPerStartsOn, setting::mPerStartsOn},
      {wPerStartsOn, setting::wPerStartsOn},
      {AlertsMoreThan, setting::AlertsMoreThan},
      {MoreThan, setting::MoreThan},
      {cmbDayWeekMonth, setting::BADayWeekMonth},
      {baDownload, setting::baDownload},
      {baUpload, setting::baUpload},
      {action_.action, setting::BAAction,
       [this](const Meter& /*m*/, std::int64_t /*action*/) { action_.ShowMessage(); }},
  });
  chkBAPlay.OnClick = [this] {
    EnablePlayControls();
    context_.Save(setting::chkBAPlay, chkBAPlay.Checked());
  };
  sound_.OnChange = [this] { context_.Save(setting::BaPlayFile, sound_.Path()); };
  action_.message.OnChange = [this] { context_.Save(setting::BAMessage, action_.message.Text()); };
}

void BandwidthAlertPage::Localise(const language::Translation& say) {
  Say(say, {
               {BAAlertsCheckBox, text::BAAlertsCheckBox, text::BAAlertsCheckBoxHint},
               {lblMPerStartsOn, text::lblMPerStartsOn},
               {mPerStartsOn, {}, text::mPerStartsOnHint},
               {lblWPerStartsOn, text::lblWPerStartsOn},
               {wPerStartsOn, {}, text::wPerStartsOnHint},
               {lblMoreThan, text::lblMoreThan},
               {AlertsMoreThan, {}, text::AlertsMoreThanHint},
               {baDownload, text::baDownload, text::baDownloadHint},
               {baUpload, text::baUpload, text::baUploadHint},
               {lblDayWeekMonth, text::lblDayWeekMonth},
               {cmbDayWeekMonth, {}, text::cmbDayWeekMonthHint},
               {chkBAPlay, text::chkBAPlay, text::chkBAPlayHint},
           });
  MoreThan.SetHint(RangeOf(MoreThan, say));
  wPerStartsOn.SetItems(
      Texts(say, {text::WeekDay0, text::WeekDay1, text::WeekDay2, text::WeekDay3, text::WeekDay4,
                  text::WeekDay5, text::WeekDay6, text::WeekDay7}));
  AlertsMoreThan.SetItems(Texts(say, {text::LimitUnit0, text::LimitUnit1, text::LimitUnit2}));
  cmbDayWeekMonth.SetItems(Texts(say, {text::Period0, text::Period1, text::Period2}));
  action_.Localise(say);
  sound_.Localise(say);
}

void BandwidthAlertPage::Read() {
  options_.Read();
  // Where nothing is stored the box stays as it is.
  chkBAPlay.SetChecked(context_.store.ReadWith(setting::chkBAPlay, chkBAPlay.Checked()));
  sound_.SetPath(context_.store.Read(setting::BaPlayFile));
  action_.message.SetText(context_.store.Read(setting::BAMessage));
}

void BandwidthAlertPage::EnablePlayControls() {
  sound_.SetEnabled(BAAlertsCheckBox.Checked() && chkBAPlay.Checked());
}

}  // namespace preferences
