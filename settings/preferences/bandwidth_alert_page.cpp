#include "settings/preferences/bandwidth_alert_page.h"

#include <string>
#include <vector>

#include "toolkit/layout.h"

namespace settings::preferences {
namespace {

namespace text = settings::text::SettingsForm;

using Meter = display::RunningMeter;

constexpr std::int64_t kHighestLimit = 2100000000;
constexpr int kLongestMessage = 254;  // characters
constexpr int kDisplayMessage = 1;    // of the actions
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
      lblBaAction(*this, "lblBaAction", toolkit::kCaptionText),
      BaAction(*this, "BaAction"),
      lblBaMessage(*this, "lblBaMessage", toolkit::kCaptionText),
      BaMessage(*this, "BaMessage"),
      options_(context) {
  PlaceControls();
  MoreThan.SetRange(1, kHighestLimit, 1);
  BaMessage.SetMaxLength(kLongestMessage);
  std::vector<std::string> days;
  for (int day = 1; day <= kDays; ++day) days.push_back(std::to_string(day));
  mPerStartsOn.SetItems(days);
  ConnectHandlers();
  EnablePlayControls();
  ShowMessage();
}

void BandwidthAlertPage::PlaceControls() {
  constexpr int kWidth = kPageWidth - 2 * kMargin;
  constexpr int kLabelWidth = 156;
  constexpr int kFieldLeft = kMargin + kLabelWidth + kMargin;
  constexpr int kFieldWidth = kPageWidth - kMargin - kFieldLeft;
  constexpr int kNumberWidth = 116;
  constexpr int kUnitLeft = kFieldLeft + kNumberWidth + kMargin;
  constexpr int kHalf = 120;
  const auto line = [](int number) { return kMargin + kRow + number * kFieldRow + 4; };
  toolkit::ApplyLayout({
      {BAAlertsCheckBox, {kMargin, kMargin, kWidth, kBoxHeight}},
      {lblMPerStartsOn, {kMargin, line(0) + 2, kLabelWidth, kBoxHeight}},
      {mPerStartsOn, {kFieldLeft, line(0), kNumberWidth, kFieldHeight}},
      {lblWPerStartsOn, {kMargin, line(1) + 2, kLabelWidth, kBoxHeight}},
      {wPerStartsOn, {kFieldLeft, line(1), kFieldWidth, kFieldHeight}},
      {lblMoreThan, {kMargin, line(2) + 2, kLabelWidth, kBoxHeight}},
      {MoreThan, {kFieldLeft, line(2), kNumberWidth, kFieldHeight}},
      {AlertsMoreThan, {kUnitLeft, line(2), kPageWidth - kMargin - kUnitLeft, kFieldHeight}},
      {baDownload, {kFieldLeft, line(3) + 2, kHalf, kBoxHeight}},
      {baUpload, {kFieldLeft + kHalf, line(3) + 2, kHalf, kBoxHeight}},
      {lblDayWeekMonth, {kMargin, line(4) + 2, kLabelWidth, kBoxHeight}},
      {cmbDayWeekMonth, {kFieldLeft, line(4), kNumberWidth, kFieldHeight}},
      {chkBAPlay, {kMargin, line(5) + 6, kWidth, kBoxHeight}},
      {lblBaAction, {kMargin, line(7) + 6, kLabelWidth, kBoxHeight}},
      {BaAction, {kFieldLeft, line(7) + 4, kFieldWidth, kFieldHeight}},
      {lblBaMessage, {kMargin, line(8) + 6, kLabelWidth, kBoxHeight}},
      {BaMessage, {kFieldLeft, line(8) + 4, kFieldWidth, kFieldHeight}},
  });
  sound_.Place({kMargin, line(6) + 2, kWidth, kFieldHeight});
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
      {BaAction, setting::BAAction,
       [this](const Meter& /*m*/, std::int64_t /*action*/) { ShowMessage(); }},
  });
  chkBAPlay.OnClick = [this] {
    EnablePlayControls();
    context_.Save(setting::chkBAPlay, chkBAPlay.Checked());
  };
  sound_.OnChange = [this] { context_.Save(setting::BaPlayFile, sound_.Path()); };
  BaMessage.OnChange = [this] { context_.Save(setting::BAMessage, BaMessage.Text()); };
}

void BandwidthAlertPage::Localise(const Translation& say) {
  Say(say, {
               {BAAlertsCheckBox, text::BAAlertsCheckBox},
               {lblMPerStartsOn, text::lblMPerStartsOn},
               {lblWPerStartsOn, text::lblWPerStartsOn},
               {lblMoreThan, text::lblMoreThan},
               {baDownload, text::baDownload},
               {baUpload, text::baUpload},
               {lblDayWeekMonth, text::lblDayWeekMonth},
               {chkBAPlay, text::chkBAPlay},
               {lblBaAction, text::lblBaAction},
               {lblBaMessage, text::lblBaMessage},
               {BaMessage, {}, text::MessageHint},
           });
  MoreThan.SetHint(RangeOf(MoreThan, say));
  wPerStartsOn.SetItems(
      Texts(say, {text::WeekDay0, text::WeekDay1, text::WeekDay2, text::WeekDay3, text::WeekDay4,
                  text::WeekDay5, text::WeekDay6, text::WeekDay7}));
  AlertsMoreThan.SetItems(Texts(say, {text::LimitUnit0, text::LimitUnit1, text::LimitUnit2}));
  cmbDayWeekMonth.SetItems(Texts(say, {text::Period0, text::Period1, text::Period2}));
  BaAction.SetItems(Texts(say, {text::Action0, text::Action1, text::Action2, text::Action3}));
  sound_.Localise(say);
}

void BandwidthAlertPage::Read() {
  options_.Read();
  // Where nothing is stored the box stays as it is.
  chkBAPlay.SetChecked(context_.store.ReadWith(setting::chkBAPlay, chkBAPlay.Checked()));
  sound_.SetPath(context_.store.Read(setting::BaPlayFile));
  BaMessage.SetText(context_.store.Read(setting::BAMessage));
}

void BandwidthAlertPage::EnablePlayControls() {
  sound_.SetEnabled(BAAlertsCheckBox.Checked() && chkBAPlay.Checked());
}

void BandwidthAlertPage::ShowMessage() {
  const bool shown = BaAction.ItemIndex() == kDisplayMessage;
  lblBaMessage.SetVisible(shown);
  BaMessage.SetVisible(shown);
}

}  // namespace settings::preferences
