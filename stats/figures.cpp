#include "stats/figures.h"

#include <algorithm>
#include <string>

#include "language/texts.h"
#include "platform/wrapping.h"

namespace stats {

std::optional<std::int64_t> Figures::Total() const {
  if (!total_dl || !total_ul) return std::nullopt;
  return platform::WrappingAdd(*total_dl, *total_ul);
}

std::optional<std::int64_t> ReadFigure(const engine::CounterOwner& owner,
                                       const settings::CounterSetting& counter,
                                       toolkit::RefreshFaults& faults) {
  std::optional<std::int64_t> figure;
  faults.Try([&] { figure = owner.Read(counter); });
  return figure;
}

Figures ReadFigures(const engine::CounterOwner& owner, const engine::CounterGroup& group,
                    toolkit::RefreshFaults& faults) {
  // A braced list is read from left to right.
  return {ReadFigure(owner, group.max_dl, faults), ReadFigure(owner, group.max_ul, faults),
          ReadFigure(owner, group.total_dl, faults), ReadFigure(owner, group.total_ul, faults)};
}

namespace {

namespace text = language::text::BandwidthStatisticsForm;

// Design pixels.
constexpr int kMargin = 8;
constexpr int kRowHeight = 17;
constexpr int kSmallestStep = 18;  // from row to row
constexpr int kLargestStep = 23;
constexpr quantity::FigureRow::Columns kColumns{36, 4, 58};

struct RowText {
  language::TextEntry caption;
  language::TextEntry hint;
};

constexpr std::array<RowText, kFigureCount> kTexts = {{{text::MaxDLRate, text::MaxDLRateHint},
                                                       {text::MaxULRate, text::MaxULRateHint},
                                                       {text::TotalDL, text::TotalDLHint},
                                                       {text::TotalUL, text::TotalULHint},
                                                       {text::TotalDLUL, text::TotalDLULHint}}};

// "Total DL && UL" is shown with one ampersand.
quantity::FigureRow RowOf(toolkit::Control& parent, std::string_view name) {
  const std::string caption = std::string(name) + "Caption";
  const std::string unit = std::string(name) + "Unit";
  return {parent, {caption, name, unit}, toolkit::kCaptionText, {platform::TextAlign::kLeft}};
}

}  // namespace

FiguresGroup::FiguresGroup(toolkit::Control& parent, const FigureNames& names)
    : GroupBox(parent, names.group),
      rows_{RowOf(*this, names.values[0]), RowOf(*this, names.values[1]),
            RowOf(*this, names.values[2]), RowOf(*this, names.values[3]),
            RowOf(*this, names.values[4])} {}

void FiguresGroup::Arrange(const platform::Rect& bounds, int below) {
  SetBounds(bounds);
  const int room = (bounds.height - kTitleHeight - below) / static_cast<int>(kFigureCount);
  const int step = std::clamp(room, kSmallestStep, kLargestStep);
  int top = kTitleHeight;
  for (quantity::FigureRow& row : rows_) {
    row.Place({kMargin, top, bounds.width - 2 * kMargin, kRowHeight}, kColumns);
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
    if (bytes[i]) rows_[i].Show(format.Text(*bytes[i]));
  }
}

void FiguresGroup::ShowZeros() {
  for (quantity::FigureRow& row : rows_) row.ShowZero();
}

}  // namespace stats
