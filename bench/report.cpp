#include "bench/report.h"

#include <cmath>
#include <cstdio>
#include <string>

namespace bench {
namespace {

constexpr int kColumn = 60;

std::string Number(double figure, std::string_view unit) {
  const bool whole = std::abs(figure - std::round(figure)) < 1e-9;
  const int decimals = whole ? 0 : (std::abs(figure) < 100 ? 2 : 1);
  char text[64];
  std::snprintf(text, sizeof(text), "%.*f", decimals, figure);
  std::string number = text;
  if (!unit.empty()) number += " " + std::string(unit);
  return number;
}

void Print(std::string_view what, const std::string& figure) {
  std::printf("%-*.*s %14s", kColumn, static_cast<int>(what.size()), what.data(), figure.c_str());
}

}  // namespace

void Report::Section(std::string_view text) {
  std::printf("\n-- %.*s\n", static_cast<int>(text.size()), text.data());
  std::fflush(stdout);
}

void Report::AtMost(std::string_view what, double figure, std::string_view unit, double budget) {
  Line(what, figure, unit, budget, figure <= budget);
}

void Report::Exactly(std::string_view what, double figure, std::string_view unit, double budget,
                     double tolerance) {
  Line(what, figure, unit, budget, std::abs(figure - budget) <= tolerance);
}

void Report::Note(std::string_view what, double figure, std::string_view unit) {
  Print(what, Number(figure, unit));
  std::printf("\n");
  std::fflush(stdout);
}

void Report::Holds(std::string_view what, bool holds, std::string_view found) {
  Print(what, std::string(found));
  std::printf("%33s  %s\n", "", holds ? "ok" : "OVER");
  if (!holds) ++over_;
  std::fflush(stdout);
}

void Report::Line(std::string_view what, double figure, std::string_view unit, double budget,
                  bool ok) {
  Print(what, Number(figure, unit));
  char ratio[32] = "-";
  if (budget != 0) std::snprintf(ratio, sizeof(ratio), "%.2f", figure / budget);
  std::printf("  budget %12s  ratio %5s  %s\n", Number(budget, unit).c_str(), ratio,
              ok ? "ok" : "OVER");
  if (!ok) ++over_;
  std::fflush(stdout);
}

}  // namespace bench
