#include <cstdint>

#include "alerts/traffic_rule.h"
#include "preferences/action_fields.h"
#include "preferences/page.h"
#include "toolkit/controls/lists.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

constexpr platform::TextStyle kWord{platform::TextAlign::kLeft};

constexpr Range kBytes{0, 2100000000, 1000};
constexpr Range kSeconds{1, 86400};
constexpr Range kTicker{1000, 10000000, 1000};

constexpr int kNumberWidth = 116;
constexpr FieldColumn kFields{kMargin + kRow + 4, 156};
constexpr FieldColumn kLower{kFields.top + 4, kFields.label_width};

// The page of the two notification rules, which share one set of controls, and of the ticker.
class NotificationPage final : public Page {
 public:
  NotificationPage(toolkit::Notebook& notebook, Context& context)
      : Page(notebook, "Notification", context) {
    Add(ReadStep::kNotificationsActive,
        {{NotificationsCheckBox, Line(kMargin), setting::NotificationsActive}});
    AddRule();
    AddTicker(kLower.Top(7) + 8);
  }

 private:
  void AddRule() {
    using Rule = alerts::TrafficRule;
    constexpr int kLeft = kFields.FieldLeft();
    constexpr Place kChoice{kMargin, kFields.top, kFields.label_width, kFieldHeight};
    constexpr Place kSound{kMargin, kFields.Top(4) + 2, kWidth, kFieldHeight};
    const auto direction = [](int column) {
      constexpr int kHalf = 124;
      return Place{kLeft + column * kHalf, kFields.Top(1) + 2, kHalf, kBoxHeight};
    };
    const auto unit = [](int row) {
      constexpr int kUnitLeft = kLeft + kNumberWidth + kMargin;
      return Place{kUnitLeft, kFields.Top(row) + 2, kPageWidth - kMargin - kUnitLeft, kBoxHeight};
    };
    const auto of_rule = [this](auto Rule::*setting) {
      return [this, setting] { return Chosen().*setting; };
    };
    Add({
        {LessOrMore, kChoice, Items{"LessOrMore"}},
        {lblBytes, unit(0)},
        {lblInLast, Line(kFields.Top(2) + 2, kFields.label_width)},
        {lblSeconds, unit(2)},
    });
    Add(ReadStep::kNotificationRule, [this] { ReadChoice(); });
    Add(ReadStep::kNotificationRule,
        {
            {PlayEnabled, Line(kLower.Top(3) + 2), of_rule(&Rule::is_play)},
            {sound_, kSound, of_rule(&Rule::wave)},
            {BytesSpin, kFields.At(0, kNumberWidth), of_rule(&Rule::bytes), kBytes,
             Says{text::lblBytes}},
            {WhenDownload, direction(0), of_rule(&Rule::downloaded)},
            {WhenUpload, direction(1), of_rule(&Rule::uploaded)},
            {BytesSec, kFields.At(2, kNumberWidth), of_rule(&Rule::seconds), kSeconds,
             Says{text::lblSeconds}},
        });
    Add(ReadStep::kNotificationRule,
        action_.Rows(kLower, 5, of_rule(&Rule::action), of_rule(&Rule::message)));
    LessOrMore.OnChange = [this] { LessOrMoreChange(); };
  }

  void AddTicker(int top) {
    constexpr int kLeftWidth = 156;
    constexpr Place kSpin{kLeftWidth + kMargin, kGroupTop, kNumberWidth, kFieldHeight};
    constexpr int kUnitLeft = kSpin.control.Right() + kMargin;
    constexpr Place kUnit{kUnitLeft, kGroupTop + 2, kWidth - kMargin - kUnitLeft, kBoxHeight};
    constexpr Place kSound{kMargin, kGroupTop + kFieldRow, kGroupWidth, kFieldHeight};
    Add(ReadStep::kTicker,
        {
            {grpTicker, {kMargin, top, kWidth, kGroupTop + 2 * kFieldRow + 4}},
            {TickerCheckBox, Line(kGroupTop + 2, kLeftWidth - kMargin), setting::TickerActive},
            {TickerSpin, kSpin, setting::TickerBytes, kTicker, Says{text::lblBytes}},
            {lblTickerBytes, kUnit, Says{text::lblBytes}},
            {ticker_sound_, kSound, setting::TickerWav},
        });
  }

  // Returns the first rule for 0 and the second for every other number.
  static const alerts::TrafficRule& RuleOf(std::int64_t less_or_more) {
    return less_or_more == 0 ? alerts::kLessRule : alerts::kMoreRule;
  }

  // Every handler reads the choice from the store anew: another program may have chosen the other
  // rule. While the settings are read, the choice follows the list, which was read first.
  const alerts::TrafficRule& Chosen() {
    return RuleOf(context_.IsReading() ? LessOrMore.ItemIndex()
                                       : context_.store.Read(setting::LessOrMore));
  }

  void ReadChoice() {
    const alerts::TrafficRule& rule = RuleOf(context_.store.Read(setting::LessOrMore));
    LessOrMore.SetItemIndex(&rule == &alerts::kLessRule ? 0 : 1);
    // The row that is selected may be the other rule's, and an action that does not exist has none.
    action_.action.SetItemIndex(-1);
  }

  void LessOrMoreChange() {
    if (context_.IsReading()) return;
    context_.Change(setting::LessOrMore, LessOrMore.ItemIndex());
    const Context::Reading scope(context_);
    Read(ReadStep::kNotificationRule);
  }

  toolkit::CheckBox NotificationsCheckBox{*this, "NotificationsCheckBox"};
  toolkit::ComboBox LessOrMore{*this, "LessOrMore"};
  toolkit::SpinEdit BytesSpin{*this, "BytesSpin"};
  toolkit::Label lblBytes{*this, "lblBytes", kWord};
  toolkit::CheckBox WhenDownload{*this, "WhenDownload"};
  toolkit::CheckBox WhenUpload{*this, "WhenUpload"};
  toolkit::Label lblInLast{*this, "lblInLast", kWord};
  toolkit::SpinEdit BytesSec{*this, "BytesSec"};
  toolkit::Label lblSeconds{*this, "lblSeconds", kWord};
  toolkit::CheckBox PlayEnabled{*this, "PlayEnabled"};
  SoundFile sound_{*this, "PlayWavFile", "PlayOpenBtn", "PlayPreview"};
  ActionFields action_{{*this, "lblAction", "ActionComboBox"},
                       {*this, "lblDisplayMessage", "DisplayMessage"}};
  toolkit::GroupBox grpTicker{*this, "grpTicker"};
  toolkit::CheckBox TickerCheckBox{grpTicker, "TickerCheckBox"};
  toolkit::SpinEdit TickerSpin{grpTicker, "TickerSpin"};
  toolkit::Label lblTickerBytes{grpTicker, "lblTickerBytes", kWord};
  SoundFile ticker_sound_{grpTicker, "TickerWavFile", "TickerOpenWav", "TickerPlayWav"};
};

}  // namespace

std::unique_ptr<Page> MakeNotificationPage(toolkit::Notebook& notebook, Context& context) {
  return std::make_unique<NotificationPage>(notebook, context);
}

}  // namespace preferences
