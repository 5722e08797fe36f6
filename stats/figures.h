// The figures of one page of a statistics window, and the group of rows that shows them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "engine/counter_group.h"
#include "language/language.h"
#include "quantity/figure_row.h"
#include "quantity/quantity.h"
#include "settings/schema.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/refresh_faults.h"

namespace stats {

// In bytes; a figure is nullopt where what is stored is no number.
struct Figures {
  std::optional<std::int64_t> max_dl;
  std::optional<std::int64_t> max_ul;
  std::optional<std::int64_t> total_dl;
  std::optional<std::int64_t> total_ul;

  // Returns both directions together, or nullopt unless both are known.
  [[nodiscard]] std::optional<std::int64_t> Total() const;
};

// Each returns nullopt for a figure that cannot be read, and adds a fault.
[[nodiscard]] std::optional<std::int64_t> ReadFigure(const engine::CounterOwner& owner,
                                                     const settings::CounterSetting& counter,
                                                     toolkit::RefreshFaults& faults);
[[nodiscard]] Figures ReadFigures(const engine::CounterOwner& owner,
                                  const engine::CounterGroup& group,
                                  toolkit::RefreshFaults& faults);

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

// A group of five figures: the largest rates, the totals, and both totals together.
class FiguresGroup : public toolkit::GroupBox {
 public:
  FiguresGroup(toolkit::Control& parent, const FigureNames& names);

  // Places the group and spreads its rows over it, but for `below` at its foot. All sizes are
  // design pixels; the group must be at least 105 + `below` high.
  void Arrange(const platform::Rect& bounds, int below);

  // Gives the rows their captions and hints; the title is the owner's.
  void Localise(const language::Translation& say);

  // Shows the figures; a row whose figure is nullopt keeps its text.
  void Show(const Figures& figures, const quantity::Formatter& format);

  // Shows zero in every row; the units stay.
  void ShowZeros();

 private:
  std::array<quantity::FigureRow, kFigureCount> rows_;
};

}  // namespace stats
