#include "preferences/reset_settings_page.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <utility>

#include "display/unit_BrisantoMain.h"
#include "preferences/grouped_reset.h"
#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace text = language::text::SettingsForm;

constexpr int kStepMs = 5;
constexpr int kSteps = 100;

struct Group {
  settings::ResetGroup group;
  language::TextEntry text;
};

constexpr std::array<Group, 12> kGroups = {{
    {settings::ResetGroup::kGeneral, text::R1},
    {settings::ResetGroup::kGraphColors, text::R2},
    {settings::ResetGroup::kGraphGrids, text::R3},
    {settings::ResetGroup::kGraphOther, text::R4},
    {settings::ResetGroup::kNumericColors, text::R5},
    {settings::ResetGroup::kNumericOther, text::R6},
    {settings::ResetGroup::kBandwidthAlerts, text::R7},
    {settings::ResetGroup::kNotifications, text::R8},
    {settings::ResetGroup::kOther, text::R9},
    {settings::ResetGroup::kDaily, text::R10},
    {settings::ResetGroup::kWeekly, text::R11},
    {settings::ResetGroup::kMonthly, text::R12},
}};

// What the line of numbers begins with after its reset; two blanks, unlike that of a start.
constexpr const char* kAverageText = "[ Average DL:0,0 kB  UL:0,0 kB ]";

}  // namespace

ResetSettingsPage::ResetSettingsPage(toolkit::Notebook& notebook, Context& context,
                                     std::function<void()> read_settings)
    : Page(notebook, "ResetSettings", context),
      read_settings_(std::move(read_settings)),
      lblReset(*this, "lblReset", toolkit::kCaptionText),
      groups_(MakeBoxes(*this)),
      SelectAll(*this, "SelectAll"),
      btnResetSettings(*this, "btnResetSettings"),
      ResetSettingPrg(*this, "ResetSettingPrg"),
      timer_(context.app, kStepMs, [this] { Progress(); }) {
  PlaceControls();
  ResetSettingPrg.SetRange(0, kSteps);
  SelectAll.OnClick = [this] { SelectAllClick(); };
  for (const auto& box : groups_) box->OnClick = [this] { GroupClick(); };
  btnResetSettings.OnClick = [this] { btnResetSettingsClick(); };
}

ResetSettingsPage::Boxes ResetSettingsPage::MakeBoxes(toolkit::Control& parent) {
  Boxes boxes;
  for (const Group& group : kGroups) {
    boxes.push_back(std::make_unique<toolkit::CheckBox>(parent, group.text.key));
  }
  return boxes;
}

void ResetSettingsPage::PlaceControls() {
  constexpr int kColumn = (kWidth - kMargin) / 2;
  constexpr int kTop = kMargin + kRow + 2;
  const int rows = static_cast<int>(groups_.size()) / 2;
  for (int i = 0; i < static_cast<int>(groups_.size()); ++i) {
    groups_[static_cast<std::size_t>(i)]->SetBounds(
        {kMargin + i / rows * (kColumn + kMargin), kTop + i % rows * kRow, kColumn, kBoxHeight});
  }
  const int below = kTop + rows * kRow + kMargin;
  constexpr int kButtonWidth = 110;
  toolkit::ApplyLayout({
      {lblReset, {kMargin, kMargin, kWidth, kBoxHeight}},
      {SelectAll, {kMargin, below, kWidth, kBoxHeight}},
      {btnResetSettings, {kMargin, below + kRow + kMargin, kButtonWidth, kButtonHeight}},
      {ResetSettingPrg,
       {kMargin + kButtonWidth + kMargin, below + kRow + kMargin + 4,
        kWidth - kButtonWidth - kMargin, 17}},
  });
}

void ResetSettingsPage::Localise(const language::Translation& say) {
  for (std::size_t i = 0; i < kGroups.size(); ++i) {
    groups_[i]->SetCaption(say(kGroups[i].text));
    groups_[i]->SetHint(
        say(PeriodOf(kGroups[i].group) ? text::ResetPeriodHint : text::ResetOptionsHint));
  }
  Say(say, {
               {lblReset, text::lblReset},
               {SelectAll, text::SelectAll, text::SelectAllHint},
               {btnResetSettings, text::btnResetSettings, text::btnResetSettingsHint},
               {ResetSettingPrg, text::ResetSettingPrg},
           });
}

void ResetSettingsPage::SelectAllClick() {
  if (context_.IsReading()) return;
  const Context::Reading reading(context_);
  for (const auto& box : groups_) box->SetChecked(SelectAll.Checked());
}

// The box for all says whether all are ticked.
void ResetSettingsPage::GroupClick() {
  if (context_.IsReading()) return;
  const Context::Reading reading(context_);
  SelectAll.SetChecked(
      std::all_of(groups_.begin(), groups_.end(), [](const auto& box) { return box->Checked(); }));
}

void ResetSettingsPage::btnResetSettingsClick() {
  std::set<settings::ResetGroup> groups;
  for (std::size_t i = 0; i < kGroups.size(); ++i) {
    if (groups_[i]->Checked()) groups.insert(kGroups[i].group);
  }
  platform::Clock& clock = context_.app.Platform().clock;
  ResetGroups(context_.store, groups, clock.Now());
  read_settings_();
  if (!groups.empty()) ShowInMeter(groups.contains(settings::ResetGroup::kNumericOther));

  btnResetSettings.SetEnabled(false);
  started_ = clock.SteadyMilliseconds();
  timer_.SetEnabled(true);
}

// The meter takes over what the controls have not pushed, as they had it already.
void ResetSettingsPage::ShowInMeter(bool line_was_reset) {
  const display::RunningMeter& meter = context_.meter;
  meter.window.ApplyDisplaySettings(display::ScaleTaken::kAsItIs);  // no group has the scale
  if (line_was_reset) meter.line.SetAverageText(kAverageText);
  meter.window.LineChanged();
}

// A step for each 5 ms that have passed: the system's timers may come more seldom.
void ResetSettingsPage::Progress() {
  const std::int64_t passed = context_.app.Platform().clock.SteadyMilliseconds() - started_;
  const std::int64_t step = std::max<std::int64_t>(1, passed / kStepMs);
  if (step > kSteps) {
    EndProgress();
  } else {
    ResetSettingPrg.SetPosition(static_cast<int>(step));
  }
}

void ResetSettingsPage::EndProgress() {
  timer_.SetEnabled(false);
  for (const auto& box : groups_) box->SetChecked(false);
  SelectAll.SetChecked(false);
  ResetSettingPrg.SetPosition(0);
  btnResetSettings.SetEnabled(true);
}

}  // namespace preferences
