#include "alerts/bandwidth_details.h"

#include <array>
#include <initializer_list>
#include <string>

#include "language/texts.h"
#include "settings/counter_text.h"

namespace alerts {
namespace {

namespace setting = settings::setting;
namespace text = language::text::BandwidthStatisticsForm;

// Blue, green, red.
constexpr platform::Colour kLightRed = 0x9999FF;

// Design pixels.
constexpr int kMargin = 8;
constexpr int kRowHeight = 21;
constexpr int kRowStep = 23;
constexpr int kUnitWidth = 48;
constexpr int kGap = 3;

platform::Colour ColourOf(bool counts) {
  return counts ? platform::colour::kLime : platform::colour::kSilver;
}

const language::TextEntry& TypeText(engine::Period period) {
  static constexpr std::array<const language::TextEntry*, 3> kTexts = {&text::Daily, &text::Weekly,
                                                                       &text::Monthly};
  return *kTexts[static_cast<std::size_t>(period)];
}

// The parts of a hint stand on lines of their own.
std::string HintOf(const language::Language& language,
                   std::initializer_list<language::TextEntry> parts) {
  std::string hint;
  for (const language::TextEntry& part : parts) {
    if (&part != parts.begin()) hint += '\r';
    hint += language.Text(part);
  }
  return hint;
}

constexpr platform::TextStyle kCaption{platform::TextAlign::kLeft, platform::Border::kSunken};

}  // namespace

BandwidthDetails::Row::Row(toolkit::Control& parent, std::string_view caption_name,
                           std::string_view value_name, std::string_view unit_name,
                           platform::Colour colour)
    : caption(parent, caption_name, kCaption),
      value(parent, value_name, toolkit::kSunkenText),
      unit(parent, unit_name, kCaption) {
  for (toolkit::Label* label : {&caption, &value, &unit}) {
    label->SetColour(platform::colour::kBlack);
  }
  SetFontColour(colour);
  value.SetCaption("0,0");
  unit.SetCaption("kB");
}

void BandwidthDetails::Row::SetFontColour(platform::Colour colour) {
  for (toolkit::Label* label : {&caption, &value, &unit}) label->SetFontColour(colour);
}

void BandwidthDetails::Row::Show(const quantity::QuantityText& text) {
  value.SetCaption(text.number);
  unit.SetCaption(text.unit);
}

BandwidthDetails::BandwidthDetails(toolkit::Control& parent, settings::Store& store,
                                   const language::Language& language)
    : store_(store),
      language_(language),
      group_(parent, "Details"),
      limit_(group_, "StaticText63", "lblBandwidthLimit", "lblBandwidthLimitUnit",
             platform::colour::kLime),
      type_(group_, "StaticText66", "lblBandwidthType", "", platform::colour::kLime),
      current_dl_(group_, "StaticText68", "lblBandwidthCurrDLTotal", "lblBandwidthCurrDLTotalUnit",
                  platform::colour::kSilver),
      current_ul_(group_, "StaticText3", "lblBandwidthCurrULTotal", "lblBandwidthCurrULTotalUnit",
                  platform::colour::kSilver),
      left_(group_, "StaticText71", "lblBandwidthLeft", "lblBandwidthLeftUnit",
            platform::colour::kLime) {
  type_.unit.SetVisible(false);
  type_.value.SetCaption("Daily");
}

void BandwidthDetails::SetBounds(const platform::Rect& bounds) {
  group_.SetBounds(bounds);
  const int inner = bounds.width - 2 * kMargin;
  const int caption = (inner - kUnitWidth - 2 * kGap) * 55 / 100;
  const int value = inner - caption - kUnitWidth - 2 * kGap;
  int top = toolkit::GroupBox::kTitleHeight + 3;
  for (Row* row : {&limit_, &type_, &current_dl_, &current_ul_, &left_}) {
    const int value_left = kMargin + caption + kGap;
    const int value_width = row == &type_ ? value + kGap + kUnitWidth : value;
    row->caption.SetBounds({kMargin, top, caption, kRowHeight});
    row->value.SetBounds({value_left, top, value_width, kRowHeight});
    row->unit.SetBounds({value_left + value + kGap, top, kUnitWidth, kRowHeight});
    top += kRowStep;
  }
}

void BandwidthDetails::Localise() {
  group_.SetCaption(language_.Text(text::Details));
  const auto localise = [this](Row& row, const language::TextEntry& caption,
                               std::initializer_list<language::TextEntry> hint) {
    row.caption.SetCaption(language_.Text(caption));
    row.caption.SetHint(HintOf(language_, hint));
  };
  localise(limit_, text::B12, {text::B12Hint});
  localise(type_, text::B13, {text::B13Hint0, text::B13Hint1});
  localise(current_dl_, text::B14,
           {text::B14Hint0, text::B14Hint1, text::B14Hint2, text::B14Hint3});
  // The third part has a key out of line with the others; language files have
  // it.
  localise(current_ul_, text::B15,
           {text::B15Hint0, text::B15Hint1, text::B54Hint2, text::B15Hint3});
  localise(left_, text::B16,
           {text::B16Hint0, text::B16Hint1, text::B16Hint2, text::B16Hint3, text::B16Hint4});
}

void BandwidthDetails::Refresh(const quantity::Formatter& format) {
  const bool download = store_.Read(setting::baDownload);
  const bool upload = store_.Read(setting::baUpload);
  current_dl_.SetFontColour(ColourOf(download));
  current_ul_.SetFontColour(ColourOf(upload));
  const std::optional<std::int64_t> limit = LimitBytes(store_);
  if (limit) limit_.Show(format.Text(*limit));
  const std::optional<engine::Period> period = ReadLimitPeriod(store_);
  if (!period) return;
  type_.value.SetCaption(language_.Text(TypeText(*period)));
  const std::int64_t dl = PeriodTotalDL(store_, *period);
  const std::int64_t ul = PeriodTotalUL(store_, *period);
  current_dl_.Show(format.Text(dl));
  current_ul_.Show(format.Text(ul));
  if (!limit || (!download && !upload)) return;
  std::int64_t left = *limit;
  if (download) left = settings::WrappingSubtract(left, dl);
  if (upload) left = settings::WrappingSubtract(left, ul);
  ShowLeft(left, format);
}

// Once red, the row stays so while its window is open: the limit was exceeded.
void BandwidthDetails::ShowLeft(std::int64_t left, const quantity::Formatter& format) {
  if (left < 0) left_.SetFontColour(kLightRed);
  left_.Show(format.SignedText(left));
}

}  // namespace alerts
