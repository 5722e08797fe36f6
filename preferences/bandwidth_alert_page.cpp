#include <string>
#include <vector>

#include "alerts/bandwidth_alert.h"
#include "preferences/action_fields.h"
#include "preferences/page.h"
#include "toolkit/controls/lists.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

constexpr int kDays = 31;
constexpr Range kLimit{1, 2100000000};

// The page of the limit of a period, and of what comes when it is reached.
class BandwidthAlertPage final : public Page {
 public:
  BandwidthAlertPage(toolkit::Notebook& notebook, Context& context)
      : Page(notebook, "BandwidthAlert", context) {
    constexpr FieldColumn kFields{kMargin + kRow + 4, 156};
    constexpr FieldColumn kLower{kFields.top + 4, kFields.label_width};
    constexpr int kLeft = kFields.FieldLeft();
    constexpr int kNumberWidth = 116;
    constexpr int kUnitLeft = kLeft + kNumberWidth + kMargin;
    constexpr Place kUnit{kUnitLeft, kFields.Top(2), kPageWidth - kMargin - kUnitLeft,
                          kFieldHeight};
    constexpr int kHalf = kNumberWidth + kMargin;  // as the limit and its unit
    constexpr int kDirections = kFields.Top(3) + 2;
    std::vector<std::string> days;
    for (int day = 1; day <= kDays; ++day) days.push_back(std::to_string(day));
    mPerStartsOn.SetItems(days);
    const auto enable = [this] {
      EnablePlayControls();
      Tell();
    };
    const auto tell = [this] { Tell(); };
    // Where nothing is stored the box stays as it is.
    const auto play = [this] {
      return settings::BooleanSetting{setting::chkBAPlay.name, chkBAPlay.Checked()};
    };
    Add(ReadStep::kBandwidthAlert,
        {
            {BAAlertsCheckBox, Line(kMargin), setting::BAAlerts, enable},
            {mPerStartsOn, kFields.At(0, kNumberWidth), setting::mPerStartsOn},
            {wPerStartsOn, kFields.At(1), setting::wPerStartsOn, Items{"WeekDay"}},
            {AlertsMoreThan, kUnit, setting::AlertsMoreThan, Items{"LimitUnit"}, tell},
            {MoreThan, kFields.At(2, kNumberWidth), setting::MoreThan, kLimit,
             [this] {
               limit_ = MoreThan.Value();
               Tell();
             }},
            {cmbDayWeekMonth, kFields.At(4, kNumberWidth), setting::BADayWeekMonth, Items{"Period"},
             tell},
            {baDownload, {kLeft, kDirections, kHalf, kBoxHeight}, setting::baDownload, tell},
            {baUpload, {kLeft + kHalf, kDirections, kHalf, kBoxHeight}, setting::baUpload, tell},
            {chkBAPlay, Line(kLower.Top(5) + 2), play, enable},
            {sound_, {kMargin, kFields.Top(6) + 2, kWidth, kFieldHeight}, setting::BaPlayFile},
        });
    Add(ReadStep::kBandwidthAlert, action_.Rows(kLower, 7, setting::BAAction, setting::BAMessage));
    // The field shows a limit also where none is stored, but that one does not count.
    Add(ReadStep::kBandwidthAlert, [this] {
      limit_ = alerts::LimitNumber(context_.store);
      Tell();
    });
    lblBaOutcome.SetBounds({kMargin, kLower.Top(9) + 4, kWidth, 3 * kBoxHeight});
    EnablePlayControls();
  }

  void Localise(const language::Translation& say) override {
    Page::Localise(say);
    Tell();
  }

 private:
  // Says what will come of the choices on the page.
  void Tell() { lblBaOutcome.SetCaption(Outcome(context_.language.Chosen())); }

  [[nodiscard]] std::string Outcome(const language::Translation& say) const {
    if (!BAAlertsCheckBox.Checked()) return say(text::BaNeverOff);
    if (!baDownload.Checked() && !baUpload.Checked()) return say(text::BaNeverNothing);
    const language::TextEntry& sentence = !baUpload.Checked()     ? text::BaWhenDownload
                                          : !baDownload.Checked() ? text::BaWhenUpload
                                                                  : text::BaWhenBoth;
    static constexpr const char* kUnits[] = {" kB", " MB", " GB"};
    const int period = cmbDayWeekMonth.ItemIndex();
    const int unit = AlertsMoreThan.ItemIndex();
    const auto* of_period = FindText("BaPeriod" + std::to_string(period));
    if (of_period == nullptr || unit < 0 || unit >= std::ssize(kUnits)) return {};
    return say(sentence, {say(*of_period), std::to_string(limit_) + kUnits[unit]});
  }

  void EnablePlayControls() {
    sound_.SetEnabled(BAAlertsCheckBox.Checked() && chkBAPlay.Checked());
  }

  toolkit::CheckBox BAAlertsCheckBox{*this, "BAAlertsCheckBox"};
  Labelled<toolkit::ComboBox> mPerStartsOn{*this, "lblMPerStartsOn", "mPerStartsOn"};
  Labelled<toolkit::ComboBox> wPerStartsOn{*this, "lblWPerStartsOn", "wPerStartsOn"};
  Labelled<toolkit::SpinEdit> MoreThan{*this, "MoreThan"};
  toolkit::ComboBox AlertsMoreThan{*this, "AlertsMoreThan"};
  toolkit::CheckBox baDownload{*this, "baDownload"};
  toolkit::CheckBox baUpload{*this, "baUpload"};
  Labelled<toolkit::ComboBox> cmbDayWeekMonth{*this, "lblDayWeekMonth", "cmbDayWeekMonth"};
  toolkit::CheckBox chkBAPlay{*this, "chkBAPlay"};
  SoundFile sound_{*this, "BaPlayFile", "BaSpeedbtn", "BaSpeedbtn2"};
  std::int64_t limit_ = 0;  // in the unit of the list
  toolkit::Label lblBaOutcome{*this, "lblBaOutcome", toolkit::kWrappedText};
  ActionFields action_{{*this, "lblBaAction", "BaAction"}, {*this, "lblBaMessage", "BaMessage"}};
};

}  // namespace

std::unique_ptr<Page> MakeBandwidthAlertPage(toolkit::Notebook& notebook, Context& context) {
  return std::make_unique<BandwidthAlertPage>(notebook, context);
}

}  // namespace preferences
