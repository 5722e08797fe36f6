#include "preferences/notification_page.h"

#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

using Meter = display::RunningMeter;

constexpr std::int64_t kMostBytes = 2100000000;
constexpr std::int64_t kBytesStep = 1000;
constexpr std::int64_t kMostSeconds = 86400;
constexpr std::int64_t kTickerMost = 10000000;
constexpr std::int64_t kTickerStep = 1000;
constexpr platform::TextStyle kWord{platform::TextAlign::kLeft};

}  // namespace

NotificationPage::NotificationPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "Notification", context),
      NotificationsCheckBox(*this, "NotificationsCheckBox"),
      LessOrMore(*this, "LessOrMore"),
      BytesSpin(*this, "BytesSpin"),
      lblBytes(*this, "lblBytes", kWord),
      WhenDownload(*this, "WhenDownload"),
      WhenUpload(*this, "WhenUpload"),
      lblInLast(*this, "lblInLast", kWord),
      BytesSec(*this, "BytesSec"),
      lblSeconds(*this, "lblSeconds", kWord),
      PlayEnabled(*this, "PlayEnabled"),
      sound_(*this, {"PlayWavFile", "PlayOpenBtn", "PlayPreview"}),
      action_(*this,
              {text::lblAction, "ActionComboBox", text::lblDisplayMessage, "DisplayMessage"}),
      grpTicker(*this, "grpTicker"),
      TickerCheckBox(grpTicker, "TickerCheckBox"),
      TickerSpin(grpTicker, "TickerSpin"),
      lblTickerBytes(grpTicker, "lblTickerBytes", kWord),
      ticker_sound_(grpTicker, {"TickerWavFile", "TickerOpenWav", "TickerPlayWav"}),
      ticker_(context),
      active_(context) {
  PlaceControls();
  BytesSpin.SetRange(0, kMostBytes, kBytesStep);
  BytesSec.SetRange(1, kMostSeconds, 1);
  TickerSpin.SetRange(kTickerStep, kTickerMost, kTickerStep);
  ConnectHandlers();
}

void NotificationPage::PlaceControls() {
  constexpr int kNumberWidth = 116;
  constexpr int kHalf = 124;
  constexpr FieldColumn kFields{kMargin + kRow + 4, 156};
  constexpr FieldColumn kLower{kFields.top + 4, kFields.label_width};
  constexpr int kLeft = kFields.FieldLeft();
  constexpr int kUnitLeft = kLeft + kNumberWidth + kMargin;
  constexpr int kUnitWidth = kPageWidth - kMargin - kUnitLeft;
  toolkit::ApplyLayout({
      {NotificationsCheckBox, {kMargin, kMargin, kWidth, kBoxHeight}},
      {LessOrMore, {kMargin, kFields.top, kFields.label_width, kFieldHeight}},
      {BytesSpin, kFields.Field(0, kNumberWidth)},
      {lblBytes, {kUnitLeft, kFields.Label(0).top, kUnitWidth, kBoxHeight}},
      {WhenDownload, {kLeft, kFields.Label(1).top, kHalf, kBoxHeight}},
      {WhenUpload, {kLeft + kHalf, kFields.Label(1).top, kHalf, kBoxHeight}},
      {lblInLast, kFields.Label(2)},
      {BytesSec, kFields.Field(2, kNumberWidth)},
      {lblSeconds, {kUnitLeft, kFields.Label(2).top, kUnitWidth, kBoxHeight}},
      {PlayEnabled, {kMargin, kLower.Label(3).top, kWidth, kBoxHeight}},
  });
  sound_.Place({kMargin, kFields.Label(4).top, kWidth, kFieldHeight});
  action_.Place(kLower, 5);
  PlaceTicker(kLower.Field(7, 0).top + 8);
}

void NotificationPage::PlaceTicker(int top) {
  constexpr int kLeftWidth = 156;
  constexpr int kNumberWidth = 116;
  constexpr int kUnitLeft = kLeftWidth + kNumberWidth + 2 * kMargin;
  toolkit::ApplyLayout({
      {grpTicker, {kMargin, top, kWidth, kGroupTop + 2 * kFieldRow + 4}},
      {TickerCheckBox, {kMargin, kGroupTop + 2, kLeftWidth - kMargin, kBoxHeight}},
      {TickerSpin, {kLeftWidth + kMargin, kGroupTop, kNumberWidth, kFieldHeight}},
      {lblTickerBytes, {kUnitLeft, kGroupTop + 2, kWidth - kMargin - kUnitLeft, kBoxHeight}},
  });
  ticker_sound_.Place({kMargin, kGroupTop + kFieldRow, kGroupWidth, kFieldHeight});
}

void NotificationPage::ConnectHandlers() {
  active_.Connect({
      {NotificationsCheckBox, setting::NotificationsActive,
       [](const Meter& m, bool on) {
         // A tick of it waits for the next scan, which starts the timer.
         if (!on) m.notifications.TimeOutTimer.SetEnabled(false);
       }},
  });
  ticker_.Connect({
      {TickerCheckBox, setting::TickerActive},
      {TickerSpin, setting::TickerBytes},
  });
  ticker_sound_.OnChange = [this] { context_.Save(setting::TickerWav, ticker_sound_.Path()); };
  LessOrMore.OnChange = [this] { LessOrMoreChange(); };
  PlayEnabled.OnClick = [this] { context_.Save(Chosen().is_play, PlayEnabled.Checked()); };
  sound_.OnChange = [this] { context_.Save(Chosen().wave, sound_.Path()); };
  BytesSpin.OnChange = [this] { context_.Save(Chosen().bytes, BytesSpin.Value()); };
  WhenDownload.OnClick = [this] { context_.Save(Chosen().downloaded, WhenDownload.Checked()); };
  WhenUpload.OnClick = [this] { context_.Save(Chosen().uploaded, WhenUpload.Checked()); };
  BytesSec.OnChange = [this] { context_.Save(Chosen().seconds, BytesSec.Value()); };
  action_.action.OnChange = [this] {
    action_.ShowMessage();
    context_.Save(Chosen().action, action_.action.ItemIndex());
  };
  action_.message.OnChange = [this] { context_.Save(Chosen().message, action_.message.Text()); };
}

void NotificationPage::Localise(const language::Translation& say) {
  Say(say,
      {
          {NotificationsCheckBox, text::NotificationsCheckBox, text::NotificationsCheckBoxHint},
          {LessOrMore, {}, text::LessOrMoreHint},
          {lblBytes, text::lblBytes},
          {WhenDownload, text::WhenDownload, text::WhenDownloadHint},
          {WhenUpload, text::WhenUpload, text::WhenUploadHint},
          {lblInLast, text::lblInLast},
          {lblSeconds, text::lblSeconds},
          {PlayEnabled, text::PlayEnabled, text::PlayEnabledHint},
          {grpTicker, text::grpTicker},
          {TickerCheckBox, text::TickerCheckBox, text::TickerCheckBoxHint},
          {lblTickerBytes, text::lblBytes},
      });
  BytesSpin.SetHint(RangeOf(BytesSpin, say));
  BytesSec.SetHint(RangeOf(BytesSec, say));
  TickerSpin.SetHint(RangeOf(TickerSpin, say));
  LessOrMore.SetItems(Texts(say, {text::LessOrMore0, text::LessOrMore1}));
  action_.Localise(say);
  sound_.Localise(say);
  ticker_sound_.Localise(say);
}

const alerts::TrafficRule& NotificationPage::Chosen() {
  return context_.store.Read(setting::LessOrMore) == 0 ? alerts::kLessRule : alerts::kMoreRule;
}

void NotificationPage::ReadTicker() {
  ticker_.Read();
  ticker_sound_.SetPath(context_.store.Read(setting::TickerWav));
}

void NotificationPage::ReadRule() {
  // Every number but 0 is the second rule.
  LessOrMore.SetItemIndex(context_.store.Read(setting::LessOrMore) == 0 ? 0 : 1);
  ReadControls();
}

void NotificationPage::ReadActive() { active_.Read(); }

void NotificationPage::LessOrMoreChange() {
  if (context_.IsReading()) return;
  context_.Save(setting::LessOrMore, LessOrMore.ItemIndex());
  const Context::Reading scope(context_);
  ReadControls();
}

void NotificationPage::ReadControls() {
  const alerts::TrafficRule& rule = Chosen();
  settings::Store& store = context_.store;
  PlayEnabled.SetChecked(store.Read(rule.is_play));
  sound_.SetPath(store.Read(rule.wave));
  BytesSpin.SetValue(store.Read(rule.bytes));
  WhenDownload.SetChecked(store.Read(rule.downloaded));
  WhenUpload.SetChecked(store.Read(rule.uploaded));
  BytesSec.SetValue(store.Read(rule.seconds));
  // One that does not exist leaves the list without a choice: the one in it may be the other
  // rule's.
  const std::int64_t action = store.Read(rule.action);
  const bool exists = action >= 0 && action < action_.action.Count();
  action_.action.SetItemIndex(exists ? static_cast<int>(action) : -1);
  action_.message.SetText(store.Read(rule.message));
}

}  // namespace preferences
