// A group of five figures: the largest rates, the totals, and both totals together.
#pragma once

#include <array>
#include <string_view>

#include "language/language.h"
#include "quantity/figure_row.h"
#include "quantity/quantity.h"
#include "stats/figures.h"
#include "toolkit/controls/buttons.h"

namespace stats {

inline constexpr std::size_t kFigureCount = 5;

// The names of a group and of the controls that show its values; each unit has the name of its
// value with "Unit" behind it, each caption with "Caption".
struct FigureNames {
  std::string_view group;
  std::array<std::string_view, kFigureCount> values;
};

inline constexpr FigureNames kInfoNames{
    "InfoGroupBox",
    {"lblInfoMaxDL", "lblInfoMaxUL", "lblInfoTotalDL", "lblInfoTotalUL", "lblInfoTotalDLUL"}};
inline constexpr FigureNames kDailyNames{
    "DailyGroupBox",
    {"lblDailyMaxDLRate", "lblDailyMaxULRate", "lblDailyDL", "lblDailyUL", "lblDailyDLUL"}};
inline constexpr FigureNames kWeeklyNames{
    "WeeklyGroupBox",
    {"lblWeeklyMaxDLRate", "lblWeeklyMaxULRate", "lblWeeklyDL", "lblWeeklyUL", "lblWeeklyDLUL"}};
inline constexpr FigureNames kMonthlyNames{"MonthlyGroupBox",
                                           {"lblMonthlyMaxDLRate", "lblMonthlyMaxULRate",
                                            "lblMonthlyDL", "lblMonthlyUL", "lblMonthlyDLUL"}};

class FiguresGroup : public toolkit::GroupBox {
 public:
  FiguresGroup(toolkit::Control& parent, const FigureNames& names);

  // Places the group and spreads its rows over it, but for `below` at its foot. All in design
  // pixels; at least 105 + `below` high.
  void Arrange(const platform::Rect& bounds, int below);

  // Captions and hints of the rows; the title is the owner's.
  void Localise(const language::Translation& say);

  // A row whose figure is nothing keeps its text.
  void Show(const Figures& figures, const quantity::Formatter& format);

  // The values alone; the units stay.
  void ShowZeros();

 private:
  std::array<quantity::FigureRow, kFigureCount> rows_;
};

}  // namespace stats
