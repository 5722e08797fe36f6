#include "stats/figures_group.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "language/texts.h"

namespace stats {
namespace {

namespace text = language::text::BandwidthStatisticsForm;

constexpr std::string_view kZero = "0,0";

// Design pixels.
constexpr int kMargin = 8;
constexpr int kRowHeight = 17;
constexpr int kSmallestStep = 18;  // from row to row
constexpr int kLargestStep = 23;
constexpr int kUnitWidth = 36;
constexpr int kGap = 4;

struct RowText {
  language::TextEntry caption;
  language::TextEntry hint;
};

constexpr std::array<RowText, kFigureCount> kTexts = {{{text::MaxDLRate, text::MaxDLRateHint},
                                                       {text::MaxULRate, text::MaxULRateHint},
                                                       {text::TotalDL, text::TotalDLHint},
                                                       {text::TotalUL, text::TotalULHint},
                                                       {text::TotalDLUL, text::TotalDLULHint}}};

constexpr platform::TextStyle kUnitText{platform::TextAlign::kLeft};

}  // namespace

// "Total DL && UL" is shown with one ampersand.
FiguresGroup::Row::Row(toolkit::Control& parent, std::string_view name)
    : caption(parent, std::string(name) + "Caption", toolkit::kCaptionText),
      value(parent, name, toolkit::kSunkenText),
      unit(parent, std::string(name) + "Unit", kUnitText) {
  value.SetCaption(kZero);
  unit.SetCaption("kB");
}

FiguresGroup::FiguresGroup(toolkit::Control& parent, const FigureNames& names)
    : GroupBox(parent, names.group),
      rows_{{{*this, names.values[0]},
             {*this, names.values[1]},
             {*this, names.values[2]},
             {*this, names.values[3]},
             {*this, names.values[4]}}} {}

void FiguresGroup::Arrange(const platform::Rect& bounds, int below) {
  SetBounds(bounds);
  const int room = (bounds.height - kTitleHeight - below) / static_cast<int>(kFigureCount);
  const int step = std::clamp(room, kSmallestStep, kLargestStep);
  const int inner = bounds.width - 2 * kMargin - kUnitWidth - 2 * kGap;
  const int caption_width = inner * 58 / 100;
  const int value_left = kMargin + caption_width + kGap;
  const int value_width = inner - caption_width;
  int top = kTitleHeight;
  for (Row& row : rows_) {
    row.caption.SetBounds({kMargin, top, caption_width, kRowHeight});
    row.value.SetBounds({value_left, top, value_width, kRowHeight});
    row.unit.SetBounds({value_left + value_width + kGap, top, kUnitWidth, kRowHeight});
    top += step;
  }
}

void FiguresGroup::Localise(const language::Translation& say) {
  for (std::size_t i = 0; i < kFigureCount; ++i) {
    const std::string hint = say(kTexts[i].hint);
    rows_[i].caption.SetCaption(say(kTexts[i].caption));
    rows_[i].caption.SetHint(hint);
    rows_[i].value.SetHint(hint);
  }
}

void FiguresGroup::Show(const Figures& figures, const quantity::Formatter& format) {
  const std::array<std::optional<std::int64_t>, kFigureCount> bytes = {
      figures.max_dl, figures.max_ul, figures.total_dl, figures.total_ul, figures.Total()};
  for (std::size_t i = 0; i < kFigureCount; ++i) {
    if (!bytes[i]) continue;
    const quantity::QuantityText text = format.Text(*bytes[i]);
    rows_[i].value.SetCaption(text.number);
    rows_[i].unit.SetCaption(text.unit);
  }
}

void FiguresGroup::ShowZeros() {
  for (Row& row : rows_) row.value.SetCaption(kZero);
}

}  // namespace stats
