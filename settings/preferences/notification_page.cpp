#include "settings/preferences/notification_page.h"

#include "toolkit/layout.h"

namespace settings::preferences {
namespace {

namespace text = settings::text::SettingsForm;

using Meter = display::RunningMeter;

constexpr std::int64_t kMostBytes = 2100000000;
constexpr std::int64_t kBytesStep = 1000;
constexpr std::int64_t kMostSeconds = 86400;
constexpr std::int64_t kTickerMost = 10000000;
constexpr std::int64_t kTickerStep = 1000;
constexpr int kLongestMessage = 254;  // characters
constexpr int kDisplayMessage = 1;    // of the actions
constexpr platform::TextStyle kWord{platform::TextAlign::kLeft};

}  // namespace

struct NotificationPage::Rule {
  const BooleanSetting& play;
  const TextSetting& sound;
  const IntegerSetting& bytes;
  const BooleanSetting& download;
  const BooleanSetting& upload;
  const IntegerSetting& seconds;
  const IntegerSetting& action;
  const TextSetting& message;
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
      lblAction(*this, "lblAction", toolkit::kCaptionText),
      ActionComboBox(*this, "ActionComboBox"),
      lblDisplayMessage(*this, "lblDisplayMessage", toolkit::kCaptionText),
      DisplayMessage(*this, "DisplayMessage"),
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
  DisplayMessage.SetMaxLength(kLongestMessage);
  ConnectHandlers();
  ShowMessage();
}

void NotificationPage::PlaceControls() {
  constexpr int kWidth = kPageWidth - 2 * kMargin;
  constexpr int kLeftWidth = 156;
  constexpr int kFieldLeft = kMargin + kLeftWidth + kMargin;
  constexpr int kNumberWidth = 116;
  constexpr int kUnitLeft = kFieldLeft + kNumberWidth + kMargin;
  constexpr int kUnitWidth = kPageWidth - kMargin - kUnitLeft;
  constexpr int kFieldWidth = kPageWidth - kMargin - kFieldLeft;
  constexpr int kHalf = 124;
  const auto line = [](int number) { return kMargin + kRow + number * kFieldRow + 4; };
  toolkit::ApplyLayout({
      {NotificationsCheckBox, {kMargin, kMargin, kWidth, kBoxHeight}},
      {LessOrMore, {kMargin, line(0), kLeftWidth, kFieldHeight}},
      {BytesSpin, {kFieldLeft, line(0), kNumberWidth, kFieldHeight}},
      {lblBytes, {kUnitLeft, line(0) + 2, kUnitWidth, kBoxHeight}},
      {WhenDownload, {kFieldLeft, line(1) + 2, kHalf, kBoxHeight}},
      {WhenUpload, {kFieldLeft + kHalf, line(1) + 2, kHalf, kBoxHeight}},
      {lblInLast, {kMargin, line(2) + 2, kLeftWidth, kBoxHeight}},
      {BytesSec, {kFieldLeft, line(2), kNumberWidth, kFieldHeight}},
      {lblSeconds, {kUnitLeft, line(2) + 2, kUnitWidth, kBoxHeight}},
      {PlayEnabled, {kMargin, line(3) + 6, kWidth, kBoxHeight}},
      {lblAction, {kMargin, line(5) + 6, kLeftWidth, kBoxHeight}},
      {ActionComboBox, {kFieldLeft, line(5) + 4, kFieldWidth, kFieldHeight}},
      {lblDisplayMessage, {kMargin, line(6) + 6, kLeftWidth, kBoxHeight}},
      {DisplayMessage, {kFieldLeft, line(6) + 4, kFieldWidth, kFieldHeight}},
  });
  sound_.Place({kMargin, line(4) + 2, kWidth, kFieldHeight});
  PlaceTicker(line(7) + 12);
}

void NotificationPage::PlaceTicker(int top) {
  constexpr int kWidth = kPageWidth - 2 * kMargin;
  constexpr int kLeftWidth = 156;
  constexpr int kNumberWidth = 116;
  constexpr int kInside = toolkit::GroupBox::kTitleHeight + 5;
  constexpr int kUnitLeft = kLeftWidth + kNumberWidth + 2 * kMargin;
  toolkit::ApplyLayout({
      {grpTicker, {kMargin, top, kWidth, kInside + 2 * kFieldRow + 4}},
      {TickerCheckBox, {kMargin, kInside + 2, kLeftWidth - kMargin, kBoxHeight}},
      {TickerSpin, {kLeftWidth + kMargin, kInside, kNumberWidth, kFieldHeight}},
      {lblTickerBytes, {kUnitLeft, kInside + 2, kWidth - kMargin - kUnitLeft, kBoxHeight}},
  });
  ticker_sound_.Place({kMargin, kInside + kFieldRow, kWidth - 2 * kMargin, kFieldHeight});
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
  PlayEnabled.OnClick = [this] { context_.Save(Chosen().play, PlayEnabled.Checked()); };
  sound_.OnChange = [this] { context_.Save(Chosen().sound, sound_.Path()); };
  BytesSpin.OnChange = [this] { context_.Save(Chosen().bytes, BytesSpin.Value()); };
  WhenDownload.OnClick = [this] { context_.Save(Chosen().download, WhenDownload.Checked()); };
  WhenUpload.OnClick = [this] { context_.Save(Chosen().upload, WhenUpload.Checked()); };
  BytesSec.OnChange = [this] { context_.Save(Chosen().seconds, BytesSec.Value()); };
  ActionComboBox.OnChange = [this] {
    ShowMessage();
    context_.Save(Chosen().action, ActionComboBox.ItemIndex());
  };
  DisplayMessage.OnChange = [this] { context_.Save(Chosen().message, DisplayMessage.Text()); };
}

void NotificationPage::Localise(const Translation& say) {
  Say(say, {
               {NotificationsCheckBox, text::NotificationsCheckBox},
               {lblBytes, text::lblBytes},
               {WhenDownload, text::WhenDownload},
               {WhenUpload, text::WhenUpload},
               {lblInLast, text::lblInLast},
               {lblSeconds, text::lblSeconds},
               {PlayEnabled, text::PlayEnabled},
               {lblAction, text::lblAction},
               {lblDisplayMessage, text::lblDisplayMessage},
               {DisplayMessage, {}, text::MessageHint},
               {grpTicker, text::grpTicker},
               {TickerCheckBox, text::TickerCheckBox, text::TickerCheckBoxHint},
               {lblTickerBytes, text::lblBytes},
           });
  BytesSpin.SetHint(RangeOf(BytesSpin, say));
  BytesSec.SetHint(RangeOf(BytesSec, say));
  TickerSpin.SetHint(RangeOf(TickerSpin, say));
  LessOrMore.SetItems(Texts(say, {text::LessOrMore0, text::LessOrMore1}));
  ActionComboBox.SetItems(Texts(say, {text::Action0, text::Action1, text::Action2, text::Action3}));
  sound_.Localise(say);
  ticker_sound_.Localise(say);
}

const NotificationPage::Rule& NotificationPage::Chosen() {
  return context_.store.Read(setting::LessOrMore) == 0 ? kLess : kMore;
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
  const Rule& rule = Chosen();
  Store& store = context_.store;
  PlayEnabled.SetChecked(store.Read(rule.play));
  sound_.SetPath(store.Read(rule.sound));
  BytesSpin.SetValue(store.Read(rule.bytes));
  WhenDownload.SetChecked(store.Read(rule.download));
  WhenUpload.SetChecked(store.Read(rule.upload));
  BytesSec.SetValue(store.Read(rule.seconds));
  const std::int64_t action = store.Read(rule.action);
  if (action >= 0 && action < ActionComboBox.Count()) {
    ActionComboBox.SetItemIndex(static_cast<int>(action));
  }
  DisplayMessage.SetText(store.Read(rule.message));
}

void NotificationPage::ShowMessage() {
  const bool shown = ActionComboBox.ItemIndex() == kDisplayMessage;
  lblDisplayMessage.SetVisible(shown);
  DisplayMessage.SetVisible(shown);
}

}  // namespace settings::preferences
