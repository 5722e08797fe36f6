#include "display/numeric_line.h"

#include "engine/product.h"
#include "settings/counter_text.h"

namespace display {
namespace {

namespace text = settings::text;

}  // namespace

void NumericLine::SetAveragePeriod(std::int64_t scans) {
  if (scans == AvarageTime) return;
  AvarageTime = scans;
  scans_summed_ = 0;
  ClearSums();
}

void NumericLine::ClearSums() {
  sum_dl_ = 0;
  sum_ul_ = 0;
}

void NumericLine::Reset() {
  const bool bits = store_.Read(settings::setting::ScaleUnit) != 0;
  // "kbit" in the first text and "kbits" in the others: the first is the text that the formatting
  // gives for zero, the others are wordings of their own. Both stay.
  const std::string zero_kbits = "0,0 kbits";
  const std::string zero_bytes = "0,0 kB";
  const std::string& zero = bits ? zero_kbits : zero_bytes;
  current_.clear();
  average_.clear();
  maximum_.clear();
  any_mode_ = false;
  if (ReadMode(settings::setting::SOM1)) {
    current_ = bits ? "[ DL:0,0 kbit UL:0,0 kbit ]" : "[ DL:0,0 kB UL:0,0 kB ]";
  }
  if (ReadMode(settings::setting::SOM2)) {
    average_ = AverageStart() + zero + " UL:" + zero + " ]";
  }
  if (ReadMode(settings::setting::SOM3)) {
    maximum_ = "[ " + language_.Text(text::MainForm::S2) + " DL:" + zero + " Max UL:" + zero + " ]";
  }
  idle_ = true;
}

void NumericLine::Localise() {
  if (idle_) {
    Reset();
  } else if (!average_start_.empty() && average_.starts_with(average_start_)) {
    const std::string rest = average_.substr(average_start_.size());
    average_ = AverageStart() + rest;
  }
}

std::string NumericLine::AverageStart() {
  average_start_ = "[ " + language_.Text(text::MainForm::S1) + " DL:";
  return average_start_;
}

void NumericLine::Update(const engine::ScanAmounts& scan) {
  idle_ = false;
  any_mode_ = false;
  current_.clear();
  if (ReadMode(settings::setting::SOM1)) {
    current_ = "[ DL:" + Amount(scan.ScanSumDL) + " UL:" + Amount(scan.ScanSumUL) + " ]";
  }
  if (ReadMode(settings::setting::SOM2)) {
    UpdateAverage(scan);
  } else {
    average_.clear();
  }
  maximum_.clear();
  if (ReadMode(settings::setting::SOM3)) {
    // The literal word here, the language's in the initial text.
    maximum_ = "[ Max DL:" + Amount(scan.ScanMaxDL) + " Max UL:" + Amount(scan.ScanMaxUL) + " ]";
  }
}

// The scan at which the average is due is counted nowhere, so with a period of 5 the text changes
// every sixth scan.
void NumericLine::UpdateAverage(const engine::ScanAmounts& scan) {
  if (scans_summed_ < AvarageTime) {
    sum_dl_ = settings::WrappingAdd(sum_dl_, scan.ScanSumDL);
    sum_ul_ = settings::WrappingAdd(sum_ul_, scan.ScanSumUL);
    ++scans_summed_;
    return;
  }
  const std::int64_t divisor = AvarageTime == 0 ? 1 : AvarageTime;
  average_ = AverageStart() + Amount(sum_dl_ / divisor) + " UL:" + Amount(sum_ul_ / divisor) + " ]";
  scans_summed_ = 0;
  ClearSums();
}

std::string NumericLine::Amount(std::int64_t bytes) {
  return NumberAndUnit(quantity_.FormatQuantity(bytes));
}

bool NumericLine::ReadMode(const settings::BooleanSetting& mode) {
  const bool on = store_.Read(mode);
  any_mode_ = any_mode_ || on;
  return on;
}

std::string NumericLine::Label() const {
  return any_mode_ ? Joined() : std::string(engine::kProductTitle);
}

std::string NumericLine::TrayHint() const {
  return std::string(engine::kProductTitle) + " " + Joined();
}

}  // namespace display
