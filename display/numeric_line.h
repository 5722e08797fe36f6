// The numeric line: current, average and maximum amounts as text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/traffic_state.h"
#include "language/language.h"
#include "quantity/quantity.h"
#include "settings/store.h"

namespace display {

// Whether a text has the form of the numeric line, whatever the language, the unit and the decimal
// separator were when it was made. An empty line has none.
[[nodiscard]] bool IsNumericLine(std::string_view text);

class NumericLine {
 public:
  // All outlive the line.
  NumericLine(settings::Store& store, quantity::Quantity& quantity,
              const language::Language& language)
      : store_(store), quantity_(quantity), language_(language) {}

  // The averaging period in scans. Another one than before starts the average anew.
  void SetAveragePeriod(std::int64_t scans);

  // The texts of an idle line, each only if its mode is on.
  void Reset();

  // A mode is switched on, in bits or bytes, which shows the text of an idle line until the next
  // amounts come, or off; the others stay. What is not stored yet counts here.
  void ShowMode(const settings::BooleanSetting& mode, bool on);
  // The line in another unit: the texts of an idle line.
  void ShowUnit(bool bits);

  // Takes over another language's words, in texts that stay until an average is next due too.
  void Localise();

  // Takes the amounts of one scan and makes the texts of the modes that are on.
  void Update(const engine::ScanAmounts& scan);

  // Zeroes the sums of the average but leaves its scan counter where it stands.
  void ClearSums();

  // The texts of the modes that are on, one behind the other; empty with all three off.
  [[nodiscard]] std::string Joined() const { return current_ + average_ + maximum_; }
  // What the meter shows: the joined texts or, with all three off, the product's name.
  [[nodiscard]] std::string Label() const;
  // What the tray icon's hint says.
  [[nodiscard]] std::string TrayHint() const;

  // Replaces the average text until the average is next due.
  void SetAverageText(std::string text) { average_ = std::move(text); }

 private:
  void UpdateAverage(const engine::ScanAmounts& scan, const quantity::Formatter& format);
  [[nodiscard]] bool ReadMode(const settings::BooleanSetting& mode);
  [[nodiscard]] std::string& TextOf(const settings::BooleanSetting& mode);
  [[nodiscard]] std::string IdleText(const settings::BooleanSetting& mode, bool bits);

  settings::Store& store_;
  quantity::Quantity& quantity_;
  const language::Language& language_;

  // Looked up anew, and remembered.
  std::string AverageStart();

  std::string current_;
  std::string average_;
  std::string maximum_;
  std::string average_start_;  // the part of the average's text that depends on the language
  bool idle_ = true;           // no scan since Reset
  bool any_mode_ = false;      // at the latest Reset or Update

  std::int64_t AvarageTime = 5;  // scans
  std::int64_t scans_summed_ = 0;
  std::int64_t sum_dl_ = 0;
  std::int64_t sum_ul_ = 0;
};

}  // namespace display
