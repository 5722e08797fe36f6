#include "preferences/notification_page.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

constexpr Range kBytes{0, 2100000000, 1000};
constexpr Range kSeconds{1, 86400};
constexpr Range kTicker{1000, 10000000, 1000};

constexpr int kNumberWidth = 116;
constexpr FieldColumn kFields{kMargin + kRow + 4, 156};
constexpr FieldColumn kLower{kFields.top + 4, kFields.label_width};

}  // namespace

struct NotificationPage::Rule {
  settings::BooleanSetting is_play;
  settings::TextSetting wave;
  settings::IntegerSetting bytes;
  settings::BooleanSetting downloaded;
  settings::BooleanSetting uploaded;
  settings::IntegerSetting seconds;
  settings::IntegerSetting action;
  settings::TextSetting message;
};

const NotificationPage::Rule NotificationPage::kLess{
    setting::LessIsPlay,     setting::LessPlayWavFile,   setting::LessByteWere,
    setting::LessDownloaded, setting::LessUploaded,      setting::LessNotSecs,
    setting::LessAction,     setting::LessDisplayMessage};
const NotificationPage::Rule NotificationPage::kMore{
    setting::MoreIsPlay,     setting::MorePlayWavFile,   setting::MoreByteWere,
    setting::MoreDownloaded, setting::MoreUploaded,      setting::MoreNotSecs,
    setting::MoreAction,     setting::MoreDisplayMessage};

NotificationPage::NotificationPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "Notification", context) {
  Add(ReadStep::kNotificationsActive,
      {{NotificationsCheckBox, Line(kMargin), setting::NotificationsActive}});
  AddRule();
  AddTicker(kLower.Top(7) + 8);
}

void NotificationPage::AddRule() {
  constexpr int kLeft = kFields.FieldLeft();
  constexpr int kHalf = 124;
  constexpr int kDirections = kFields.Top(1) + 2;
  const auto unit = [](int row) {
    constexpr int kUnitLeft = kLeft + kNumberWidth + kMargin;
    return Place{kUnitLeft, kFields.Top(row) + 2, kPageWidth - kMargin - kUnitLeft, kBoxHeight};
  };
  const auto of_rule = [this](auto Rule::*setting) {
    return [this, setting] { return Chosen().*setting; };
  };
  Add({
      {LessOrMore, {kMargin, kFields.top, kFields.label_width, kFieldHeight}, Items{"LessOrMore"}},
      {lblBytes, unit(0)},
      {lblInLast, {kMargin, kFields.Top(2) + 2, kFields.label_width, kBoxHeight}},
      {lblSeconds, unit(2)},
  });
  Add(ReadStep::kNotificationRule, [this] { ReadChoice(); });
  Add(ReadStep::kNotificationRule,
      {
          {PlayEnabled, Line(kLower.Top(3) + 2), of_rule(&Rule::is_play)},
          {sound_, {kMargin, kFields.Top(4) + 2, kWidth, kFieldHeight}, of_rule(&Rule::wave)},
          {BytesSpin, kFields.At(0, kNumberWidth), of_rule(&Rule::bytes), kBytes},
          {WhenDownload, {kLeft, kDirections, kHalf, kBoxHeight}, of_rule(&Rule::downloaded)},
          {WhenUpload, {kLeft + kHalf, kDirections, kHalf, kBoxHeight}, of_rule(&Rule::uploaded)},
          {BytesSec, kFields.At(2, kNumberWidth), of_rule(&Rule::seconds), kSeconds},
          {action_.action, kLower.At(5), of_rule(&Rule::action), Items{"Action"},
           [this] { action_.ShowMessage(); }},
          {action_.message, kLower.At(6), of_rule(&Rule::message)},
      });
  LessOrMore.OnChange = [this] { LessOrMoreChange(); };
}

void NotificationPage::AddTicker(int top) {
  constexpr int kLeftWidth = 156;
  constexpr int kUnitLeft = kLeftWidth + kNumberWidth + 2 * kMargin;
  Add(ReadStep::kTicker,
      {
          {grpTicker, {kMargin, top, kWidth, kGroupTop + 2 * kFieldRow + 4}},
          {TickerCheckBox, Line(kGroupTop + 2, kLeftWidth - kMargin), setting::TickerActive},
          {TickerSpin,
           {kLeftWidth + kMargin, kGroupTop, kNumberWidth, kFieldHeight},
           setting::TickerBytes,
           kTicker},
          {lblTickerBytes, {kUnitLeft, kGroupTop + 2, kWidth - kMargin - kUnitLeft, kBoxHeight}},
          {ticker_sound_,
           {kMargin, kGroupTop + kFieldRow, kGroupWidth, kFieldHeight},
           setting::TickerWav},
      });
}

void NotificationPage::Localise(const language::Translation& say) {
  Page::Localise(say);
  Say(say, {{lblTickerBytes, text::lblBytes}});
  action_.Localise(say);
}

const NotificationPage::Rule& NotificationPage::Chosen() {
  return context_.store.Read(setting::LessOrMore) == 0 ? kLess : kMore;
}

void NotificationPage::ReadChoice() {
  // Every number but 0 is the second rule.
  LessOrMore.SetItemIndex(context_.store.Read(setting::LessOrMore) == 0 ? 0 : 1);
  // An action that does not exist shows none: the one in the list may be the other rule's.
  action_.action.SetItemIndex(-1);
}

void NotificationPage::LessOrMoreChange() {
  if (context_.IsReading()) return;
  context_.Change(setting::LessOrMore, LessOrMore.ItemIndex());
  const Context::Reading scope(context_);
  Read(ReadStep::kNotificationRule);
}

}  // namespace preferences
