#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <string_view>
#include <vector>

#include "display/unit_BrisantoMain.h"
#include "preferences/grouped_reset.h"
#include "preferences/page.h"
#include "toolkit/controls/bars.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/timer.h"

namespace preferences {
namespace {

namespace text = language::text::SettingsForm;

constexpr int kStepMs = 5;
constexpr int kSteps = 100;

struct Group {
  settings::ResetGroup group;
  std::string_view name;  // of the group's box
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

// The average text of the numeric line after its reset. It has two blanks before "UL", unlike the
// text at a start.
constexpr const char* kAverageText = "[ Average DL:0,0 kB  UL:0,0 kB ]";

// The page that puts options back to their defaults, group by group.
class ResetSettingsPage final : public Page {
 public:
  ResetSettingsPage(toolkit::Notebook& notebook, Context& context)
      : Page(notebook, "ResetSettings", context) {
    constexpr int kRows = static_cast<int>(kGroups.size()) / 2;
    constexpr int kColumn = (kWidth - kMargin) / 2;
    constexpr int kTop = kMargin + kRow + 2;
    constexpr int kBelow = kTop + kRows * kRow + kMargin;
    constexpr int kButton = kBelow + kRow + kMargin;
    constexpr int kButtonWidth = 110;
    for (int i = 0; i < static_cast<int>(groups_.size()); ++i) {
      const auto at = static_cast<std::size_t>(i);
      const Place place{kMargin + i / kRows * (kColumn + kMargin), kTop + i % kRows * kRow, kColumn,
                        kBoxHeight};
      Add({{*groups_[at], place, Says{{}, HintOf(kGroups[at])}}});
      groups_[at]->OnClick = [this] { GroupClick(); };
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

 private:
  using Boxes = std::vector<std::unique_ptr<toolkit::CheckBox>>;

  static Boxes MakeBoxes(toolkit::Control& parent) {
    Boxes boxes;
    for (const Group& group : kGroups) {
      boxes.push_back(std::make_unique<toolkit::CheckBox>(parent, group.name));
    }
    return boxes;
  }

  static const language::TextEntry& HintOf(const Group& group) {
    return PeriodOf(group.group) ? text::ResetPeriodHint : text::ResetOptionsHint;
  }

  void SelectAllClick() {
    if (context_.IsReading()) return;
    const Context::Reading reading(context_);
    for (const auto& box : groups_) box->SetChecked(SelectAll.Checked());
  }

  // Shows in the box for all whether all groups are ticked.
  void GroupClick() {
    if (context_.IsReading()) return;
    const Context::Reading reading(context_);
    SelectAll.SetChecked(std::all_of(groups_.begin(), groups_.end(),
                                     [](const auto& box) { return box->Checked(); }));
  }

  void btnResetSettingsClick() {
    std::set<settings::ResetGroup> groups;
    for (std::size_t i = 0; i < kGroups.size(); ++i) {
      if (groups_[i]->Checked()) groups.insert(kGroups[i].group);
    }
    platform::Clock& clock = context_.app.Platform().clock;
    ResetGroups(context_.store, groups, clock.Now());
    context_.ReadSettings();
    if (!groups.empty()) ShowInMeter(groups.contains(settings::ResetGroup::kNumericOther));

    btnResetSettings.SetEnabled(false);
    started_ = clock.SteadyMilliseconds();
    timer_.SetEnabled(true);
  }

  // Gives the meter the values that the controls have not pushed because they showed them already.
  void ShowInMeter(bool line_was_reset) {
    const display::RunningMeter& meter = context_.meter;
    meter.window.ApplyDisplaySettings(display::ScaleTaken::kAsItIs);  // the scale is in no group
    if (line_was_reset) meter.line.SetAverageText(kAverageText);
    meter.window.LineChanged();
  }

  // The bar moves one step for each 5 ms that have passed, since the system's timers may tick less
  // often.
  void Progress() {
    const std::int64_t passed = context_.app.Platform().clock.SteadyMilliseconds() - started_;
    const std::int64_t step = std::max<std::int64_t>(1, passed / kStepMs);
    if (step > kSteps) {
      EndProgress();
    } else {
      ResetSettingPrg.SetPosition(static_cast<int>(step));
    }
  }

  void EndProgress() {
    timer_.SetEnabled(false);
    for (const auto& box : groups_) box->SetChecked(false);
    ResetSettingPrg.SetPosition(0);
    btnResetSettings.SetEnabled(true);
  }

  toolkit::Label lblReset{*this, "lblReset", toolkit::kCaptionText};
  const Boxes groups_ = MakeBoxes(*this);  // R1 to R12
  toolkit::CheckBox SelectAll{*this, "SelectAll"};
  toolkit::Button btnResetSettings{*this, "btnResetSettings"};
  toolkit::ProgressBar ResetSettingPrg{*this, "ResetSettingPrg"};

  // The progress is only shown to the user. It goes on while the window is hidden and ends when the
  // window is destroyed.
  toolkit::Timer timer_{App(), kStepMs, [this] { Progress(); }};
  std::int64_t started_ = 0;  // ms of the steady clock
};

}  // namespace

std::unique_ptr<Page> MakeResetSettingsPage(toolkit::Notebook& notebook, Context& context) {
  return std::make_unique<ResetSettingsPage>(notebook, context);
}

}  // namespace preferences
