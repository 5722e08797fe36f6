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

// Returns whether a text has the form of the numeric line, whatever the language, the unit and the
// decimal separator were when it was made. Returns false for an empty text.
[[nodiscard]] bool IsNumericLine(std::string_view text);

class NumericLine {
 public:
  // All arguments outlive the line.
  NumericLine(settings::Store& store, quantity::Quantity& quantity,
              const language::Language& language)
      : store_(store), quantity_(quantity), language_(language) {}

  // Sets the averaging period, in scans. A changed period starts the average anew.
  void SetAveragePeriod(std::int64_t scans);

  // Sets the texts of an idle line, each only if its mode is on.
  void Reset();

  // Switches one mode on or off; the other modes stay. A mode that is switched on shows the text of
  // an idle line, in bits or bytes, until the next amounts come. `on` counts, whatever is stored.
  void ShowMode(const settings::BooleanSetting& mode, bool on);
  // Changes the unit of the line: sets the texts of an idle line in that unit.
  void ShowUnit(bool bits);

  // Takes over the words of the user's language, also in the texts that stay until an average is
  // next due.
  void Localise();

  // Takes the amounts of one scan and makes the texts of the modes that are on.
  void Update(const engine::ScanAmounts& scan);

  // Zeroes the sums of the average but leaves its scan counter where it stands.
  void ClearSums();

  // Returns the texts of the modes that are on, one after the other, or an empty text when all
  // three are off.
  [[nodiscard]] std::string Joined() const { return current_ + average_ + maximum_; }
  // Returns what the meter shows: the joined texts, or the product's name when all three modes are
  // off.
  [[nodiscard]] std::string Label() const;
  // Returns the text of the tray icon's hint.
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

  // Looks the start of the average's text up and remembers it in average_start_.
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
