#include "stats/statistics_form.h"

#include <string>
#include <utility>

#include "language/texts.h"
#include "toolkit/controls/layout.h"
#include "toolkit/copy_text.h"

namespace stats {
namespace {

namespace text = language::text::BandwidthStatisticsForm;

constexpr int kRefreshMs = 500;

// Design pixels.
constexpr int kInfoGroupHeight = 40;
constexpr int kAddressBelow = 18;  // from the address's caption to the address, where it is below
constexpr int kFootHeight = 29;    // of the form, with the button "Ok"
constexpr int kButtonHeight = 21;  // within a group
constexpr int kGroupFoot = 4;      // what a group leaves free below its rows

constexpr platform::TextStyle kAddressText{platform::TextAlign::kLeft, platform::Border::kSunken};

}  // namespace

StatisticsForm::StatisticsForm(const StatisticsContext& context, const Kind& kind,
                               engine::CounterOwner counters)
    : Form(context.app, kind.form_name, platform::Frame::kTool),
      context_(context),
      counters_(std::move(counters)),
      IpAddress(InfoGroup, "IpAddress", kAddressText),
      Timer1(context.app, kRefreshMs, [this] { Timer1Timer(); }),
      _tlkFormSaver(*this, kind.placement_key, toolkit::PlacementSaver::Restores::kPlace),
      address_caption_(kind.address_caption),
      address_below_(kind.address_below),
      since_date_(context.traffic.RunStartDate),
      since_time_(context.traffic.RunStartTime) {
  IpAddress.SetCaption(kind.address);
  Button2.SetDefault(true);
  // On release, as the right button does the same and more; the click serves the keyboard.
  Button1.OnMousePressed = [this](const auto&) { copied_by_click_ = false; };
  Button1.OnMouseReleased = [this](const auto& event) { Button1MouseUp(event); };
  Button1.OnClick = [this] {
    CopyAddress();
    copied_by_click_ = true;
  };
  Button2.OnClick = [this] { Button2Click(); };
  Button3.OnClick = [this] { Button3Click(); };
}

platform::Size StatisticsForm::RoomOf(toolkit::TabSheet& page) {
  const platform::Size pixels = page.ClientPixels();
  return {page.Unscale(pixels.width), page.Unscale(pixels.height)};
}

void StatisticsForm::Arrange() {
  const auto [width, height] = ClientSize();
  toolkit::ApplyLayout({{PageControl1, {0, 1, width, height - kFootHeight - 1}},
                        {Button2, {width - 81, height - 26, 75, 23}}});

  const platform::Size room = RoomOf(InfoTab);
  const int group = room.width;  // all of it, for the "since" caption
  const int lower = address_below_ ? kAddressBelow : 0;
  const int address_left = address_below_ ? 8 : 80;
  const int since_top = kInfoGroupHeight + lower + 1;
  const int since_height = room.height - since_top - 1;
  toolkit::ApplyLayout(
      {{InfoGroup, {0, 0, group, kInfoGroupHeight + lower}},
       {IpLabel, {8, 16, address_below_ ? group - 16 : 71, address_below_ ? 16 : 18}},
       {IpAddress, {address_left, 16 + lower, group - address_left - 68, 18}},
       {Button1, {group - 64, 14 + lower, 56, kButtonHeight}},
       {Button3, {group - 98, since_height - kButtonHeight - kGroupFoot, 90, kButtonHeight}}});
  InfoGroupBox.Arrange({0, since_top, group, since_height}, kButtonHeight + kGroupFoot + 2);
  for (FiguresGroup* period : {&DailyGroupBox, &WeeklyGroupBox, &MonthlyGroupBox}) {
    period->Arrange({0, 0, group, room.height - 1}, kGroupFoot);
  }
  CentreOnScreen();
  _tlkFormSaver.Restore();
}

void StatisticsForm::Localise() {
  const language::Translation say = context_.language.Chosen();
  language::SayNames(*this, text::Title.section, say);
  IpLabel.SetCaption(say(address_caption_));
  DailyTab.SetCaption(say(text::Daily));
  WeeklyTab.SetCaption(say(text::Weekly));
  MonthlyTab.SetCaption(say(text::Monthly));
  for (FiguresGroup* period : {&DailyGroupBox, &WeeklyGroupBox, &MonthlyGroupBox}) {
    period->SetCaption(say(text::DataTransferred));
    period->Localise(say);
  }
  InfoGroupBox.Localise(say);
  LocaliseSince(say);
}

void StatisticsForm::LocaliseSince(const language::Translation& say) {
  if (!since_shown_) {
    InfoGroupBox.SetCaption(say(text::InfoGroupBox));
    return;
  }
  platform::Locale& locale = App().Platform().locale;
  const std::string since = locale.ShortDate(since_date_) + ' ' + locale.LongTime(since_time_);
  const std::string caption = say(text::B8, {since});
  InfoGroupBox.SetCaption(caption);
  InfoGroupBox.SetHint(caption);  // some locales write more than there is room for
}

void StatisticsForm::ShowSince() {
  since_date_ = context_.traffic.RunStartDate;
  since_time_ = context_.traffic.RunStartTime;
  since_shown_ = true;
  LocaliseSince(context_.language.Chosen());
}

void StatisticsForm::RestartSince() {
  context_.traffic.RestartSince(App().Platform().clock.Now());
  ShowSince();
}

void StatisticsForm::ShowFigures(const Figures& info, const quantity::Formatter& format) {
  // The other window may have reset.
  const engine::TrafficState& traffic = context_.traffic;
  if (traffic.RunStartDate != since_date_ || traffic.RunStartTime != since_time_) ShowSince();
  InfoGroupBox.Show(info, format);
  DailyGroupBox.Show(ReadFigures(counters_, engine::kDayGroup, faults_), format);
  WeeklyGroupBox.Show(ReadFigures(counters_, engine::kWeekGroup, faults_), format);
  MonthlyGroupBox.Show(ReadFigures(counters_, engine::kMonthGroup, faults_), format);
}

void StatisticsForm::Button1MouseUp(const platform::MouseEvent& event) {
  const bool closes = event.button == platform::MouseButton::kRight;
  if (!closes && event.button != platform::MouseButton::kLeft) return;
  // A click of the mouse is heard just before its release.
  if (closes || !copied_by_click_) CopyAddress();
  if (closes) Close();
}

void StatisticsForm::CopyAddress() {
  toolkit::CopyText(App().Platform().clipboard, IpAddress.Caption());
}

}  // namespace stats
