// The lines that a benchmark prints: what was measured, the figure, its budget and their ratio.
#pragma once

#include <string_view>

namespace bench {

class Report {
 public:
  // A heading between the lines; says where the load comes from.
  void Section(std::string_view text);

  // A figure that may not be larger than its budget.
  void AtMost(std::string_view what, double figure, std::string_view unit, double budget);
  // A figure that may not differ from its budget by more than `tolerance`.
  void Exactly(std::string_view what, double figure, std::string_view unit, double budget,
               double tolerance = 0);
  // A figure without a budget.
  void Note(std::string_view what, double figure, std::string_view unit);
  // Something that must hold and has no figure; `found` says what was seen.
  void Holds(std::string_view what, bool holds, std::string_view found);

  // 1 when something was over its budget, else 0.
  [[nodiscard]] int ExitCode() const { return over_ > 0 ? 1 : 0; }

 private:
  void Line(std::string_view what, double figure, std::string_view unit, double budget, bool ok);

  int over_ = 0;
};

}  // namespace bench
