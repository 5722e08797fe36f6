#include "alerts/bandwidth_details.h"

#include <array>
#include <initializer_list>
#include <string>

#include "language/texts.h"
#include "platform/wrapping.h"

namespace alerts {
namespace {

namespace setting = settings::setting;
namespace text = language::text::BandwidthStatisticsForm;

// The digits are blue, green and red.
constexpr platform::Colour kLightRed = 0x9999FF;

// Sizes in design pixels.
constexpr int kMargin = 8;
constexpr int kRowHeight = 21;
constexpr int kRowStep = 23;
constexpr quantity::FigureRow::Columns kColumns{48, 3, 55};

platform::Colour ColourOf(bool counts) {
  return counts ? platform::colour::kLime : platform::colour::kSilver;
}

const language::TextEntry& TypeText(engine::Period period) {
  static constexpr std::array<const language::TextEntry*, 3> kTexts = {&text::Daily, &text::Weekly,
                                                                       &text::Monthly};
  return *kTexts[static_cast<std::size_t>(period)];
}

// Each part of a hint stands on a line of its own.
std::string HintOf(const language::Language& language,
                   std::initializer_list<language::TextEntry> parts) {
  std::string hint;
  for (const language::TextEntry& part : parts) {
    if (&part != parts.begin()) hint += '\r';
    hint += language.Text(part);
  }
  return hint;
}

constexpr platform::TextStyle kText{platform::TextAlign::kLeft, platform::Border::kSunken};

}  // namespace

BandwidthDetails::BandwidthDetails(toolkit::Control& parent, settings::Store& store,
                                   const language::Language& language)
    : store_(store),
      language_(language),
      group_(parent, "Details"),
      limit_(group_, {"StaticText63", "lblBandwidthLimit", "lblBandwidthLimitUnit"}, kText, kText),
      type_(group_, {"StaticText66", "lblBandwidthType", ""}, kText, kText),
      current_dl_(group_,
                  {"StaticText68", "lblBandwidthCurrDLTotal", "lblBandwidthCurrDLTotalUnit"}, kText,
                  kText),
      current_ul_(group_, {"StaticText3", "lblBandwidthCurrULTotal", "lblBandwidthCurrULTotalUnit"},
                  kText, kText),
      left_(group_, {"StaticText71", "lblBandwidthLeft", "lblBandwidthLeftUnit"}, kText, kText) {
  for (quantity::FigureRow* row : {&limit_, &type_, &current_dl_, &current_ul_, &left_}) {
    row->SetColour(platform::colour::kBlack);
    row->SetFontColour(platform::colour::kLime);
  }
  current_dl_.SetFontColour(platform::colour::kSilver);
  current_ul_.SetFontColour(platform::colour::kSilver);
  type_.unit.SetVisible(false);
  type_.value.SetCaption("Daily");
}

void BandwidthDetails::SetBounds(const platform::Rect& bounds) {
  group_.SetBounds(bounds);
  int top = toolkit::GroupBox::kTitleHeight + 3;
  for (quantity::FigureRow* row : {&limit_, &type_, &current_dl_, &current_ul_, &left_}) {
    row->Place({kMargin, top, bounds.width - 2 * kMargin, kRowHeight}, kColumns);
    top += kRowStep;
  }
}

void BandwidthDetails::Localise() {
  group_.SetCaption(language_.Text(text::Details));
  const auto localise = [this](quantity::FigureRow& row, const language::TextEntry& caption,
                               std::initializer_list<language::TextEntry> hint) {
    row.caption.SetCaption(language_.Text(caption));
    row.caption.SetHint(HintOf(language_, hint));
  };
  localise(limit_, text::B12, {text::B12Hint});
  localise(type_, text::B13, {text::B13Hint0, text::B13Hint1});
  localise(current_dl_, text::B14,
           {text::B14Hint0, text::B14Hint1, text::B14Hint2, text::B14Hint3});
  // The third part has a key that differs from the others; the language files use it, so it is
  // kept.
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
  if (download) left = platform::WrappingSubtract(left, dl);
  if (upload) left = platform::WrappingSubtract(left, ul);
  ShowLeft(left, format);
}

// A row that has turned red stays red while its window is open: the limit was exceeded.
void BandwidthDetails::ShowLeft(std::int64_t left, const quantity::Formatter& format) {
  if (left < 0) left_.SetFontColour(kLightRed);
  left_.Show(format.SignedText(left));
}

}  // namespace alerts
