#include "preferences/reset_settings_page.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>
#include <utility>

#include "display/unit_BrisantoMain.h"
#include "preferences/grouped_reset.h"

namespace preferences {
namespace {

namespace text = language::text::SettingsForm;

constexpr int kSteps = 100;

struct Group {
  settings::ResetGroup group;
  std::string_view name;  // of its box
};

constexpr std::array<Group, 12> kGroups = {{
    {settings::ResetGroup::kGeneral, "R1"},
    {settings::ResetGroup::kGraphColors, "R2"},
    {settings::ResetGroup::kGraphGrids, "R3"},
    {settings::ResetGroup::kGraphOther, "R4"},
    {settings::ResetGroup::kNumericColors, "R5"},
    {settings::ResetGroup::kNumericOther, "R6"},
    {settings::ResetGroup::kBandwidthAlerts, "R7"},
    {settings::ResetGroup::kNotifications, "R8"},
    {settings::ResetGroup::kOther, "R9"},
    {settings::ResetGroup::kDaily, "R10"},
    {settings::ResetGroup::kWeekly, "R11"},
    {settings::ResetGroup::kMonthly, "R12"},
}};

// What the line of numbers begins with after its reset; two blanks, unlike that of a start.
constexpr const char* kAverageText = "[ Average DL:0,0 kB  UL:0,0 kB ]";

}  // namespace

ResetSettingsPage::ResetSettingsPage(toolkit::Notebook& notebook, Context& context,
                                     std::function<void()> read_settings)
    : Page(notebook, "ResetSettings", context), read_settings_(std::move(read_settings)) {
  constexpr int kRows = static_cast<int>(kGroups.size()) / 2;
  constexpr int kColumn = (kWidth - kMargin) / 2;
  constexpr int kTop = kMargin + kRow + 2;
  constexpr int kBelow = kTop + kRows * kRow + kMargin;
  constexpr int kButton = kBelow + kRow + kMargin;
  constexpr int kButtonWidth = 110;
  for (int i = 0; i < static_cast<int>(groups_.size()); ++i) {
    toolkit::CheckBox& box = *groups_[static_cast<std::size_t>(i)];
    box.SetBounds(
        {kMargin + i / kRows * (kColumn + kMargin), kTop + i % kRows * kRow, kColumn, kBoxHeight});
    box.OnClick = [this] { GroupClick(); };
  }
  Add({
      {lblReset, Line(kMargin)},
      {SelectAll, Line(kBelow)},
      {btnResetSettings, {kMargin, kButton, kButtonWidth, kButtonHeight}},
      {ResetSettingPrg,
       {kMargin + kButtonWidth + kMargin, kButton + 4, kWidth - kButtonWidth - kMargin, 17}},
  });
  ResetSettingPrg.SetRange(0, kSteps);
  SelectAll.OnClick = [this] { SelectAllClick(); };
  btnResetSettings.OnClick = [this] { btnResetSettingsClick(); };
}

ResetSettingsPage::Boxes ResetSettingsPage::MakeBoxes(toolkit::Control& parent) {
  Boxes boxes;
  for (const Group& group : kGroups) {
    boxes.push_back(std::make_unique<toolkit::CheckBox>(parent, group.name));
  }
  return boxes;
}

void ResetSettingsPage::Localise(const language::Translation& say) {
  Page::Localise(say);
  for (std::size_t i = 0; i < kGroups.size(); ++i) {
    groups_[i]->SetHint(
        say(IsPeriod(kGroups[i].group) ? text::ResetPeriodHint : text::ResetOptionsHint));
  }
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
  meter.window.ApplyDisplaySettings();
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
