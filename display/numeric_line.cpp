#include "display/numeric_line.h"

#include <algorithm>

#include "platform/wrapping.h"
#include "program/product.h"

namespace display {
namespace {

namespace setting = settings::setting;
namespace text = language::text;

constexpr settings::BooleanSetting kModes[] = {setting::SOM1, setting::SOM2, setting::SOM3};

// Of two units that begin alike, the longer one comes first.
constexpr std::string_view kUnits[] = {"kB",   "MB",    "GB",    "TB",   "kbits",
                                       "kbit", "Mbits", "Gbits", "Tbits"};

// Takes a piece off the front of a text that begins with it.
bool Take(std::string_view& text, std::string_view piece) {
  if (!text.starts_with(piece)) return false;
  text.remove_prefix(piece.size());
  return true;
}

// Takes an amount: "1,5 kB", or the one blank of an amount without a text.
bool TakeAmount(std::string_view& text) {
  if (Take(text, " ")) return true;
  const std::size_t blank = text.find(' ');
  if (blank == std::string_view::npos || text[0] < '0' || text[0] > '9') return false;
  text.remove_prefix(blank + 1);
  return std::any_of(std::begin(kUnits), std::end(kUnits),
                     [&text](std::string_view unit) { return Take(text, unit); });
}

// Takes the text of one mode, such as "[ Average DL:1 kB UL:2 kB ]".
bool TakeMode(std::string_view& text) {
  if (!Take(text, "[ ")) return false;
  const std::size_t amounts = text.find("DL:");
  if (amounts == std::string_view::npos) return false;
  const std::string_view word = text.substr(0, amounts);
  if (word.find_first_of("[]") != std::string_view::npos) return false;
  if (!word.empty() && !word.ends_with(' ')) return false;
  text.remove_prefix(amounts);
  if (!Take(text, "DL:") || !TakeAmount(text) || !Take(text, " ")) return false;
  Take(text, " ");  // a reset leaves two blanks
  Take(text, "Max ");
  return Take(text, "UL:") && TakeAmount(text) && Take(text, " ]");
}

}  // namespace

bool IsNumericLine(std::string_view text) {
  if (text.empty()) return false;
  while (!text.empty()) {
    if (!TakeMode(text)) return false;
  }
  return true;
}

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

void NumericLine::Reset() { ShowUnit(store_.Read(setting::ScaleUnit) != 0); }

void NumericLine::ShowUnit(bool bits) {
  any_mode_ = false;
  for (const settings::BooleanSetting& mode : kModes) {
    TextOf(mode) = ReadMode(mode) ? IdleText(mode, bits) : "";
  }
  idle_ = true;
}

void NumericLine::ShowMode(const settings::BooleanSetting& mode, bool on) {
  std::string& text = TextOf(mode);
  if (!on) {
    text.clear();
  } else if (text.empty()) {
    text = IdleText(mode, store_.Read(setting::ScaleUnit) != 0);
  }
  any_mode_ = on;
  for (const settings::BooleanSetting& other : kModes) {
    if (other.name != mode.name) (void)ReadMode(other);
  }
}

std::string& NumericLine::TextOf(const settings::BooleanSetting& mode) {
  if (mode.name == setting::SOM1.name) return current_;
  return mode.name == setting::SOM2.name ? average_ : maximum_;
}

std::string NumericLine::IdleText(const settings::BooleanSetting& mode, bool bits) {
  // The unit is "kbit" in the first text and "kbits" in the others: the first is the text that the
  // formatting gives for zero, the others are fixed wordings. Both are kept.
  if (mode.name == setting::SOM1.name) {
    return bits ? "[ DL:0,0 kbit UL:0,0 kbit ]" : "[ DL:0,0 kB UL:0,0 kB ]";
  }
  const std::string zero = bits ? "0,0 kbits" : "0,0 kB";
  if (mode.name == setting::SOM2.name) return AverageStart() + zero + " UL:" + zero + " ]";
  return "[ " + language_.Text(text::MainForm::S2) + " DL:" + zero + " Max UL:" + zero + " ]";
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
  const quantity::Formatter format = quantity_.ForStep();
  const auto amount = [&](std::int64_t bytes) { return format.Text(bytes).Joined(); };
  current_.clear();
  if (ReadMode(setting::SOM1)) {
    current_ = "[ DL:" + amount(scan.ScanSumDL) + " UL:" + amount(scan.ScanSumUL) + " ]";
  }
  if (ReadMode(setting::SOM2)) {
    UpdateAverage(scan, format);
  } else {
    average_.clear();
  }
  maximum_.clear();
  if (ReadMode(setting::SOM3)) {
    // The word is literal here, while the initial text has the word of the user's language.
    maximum_ = "[ Max DL:" + amount(scan.ScanMaxDL) + " Max UL:" + amount(scan.ScanMaxUL) + " ]";
  }
}

// The scan at which the average is due is not counted, so with a period of 5 the text changes every
// sixth scan.
void NumericLine::UpdateAverage(const engine::ScanAmounts& scan,
                                const quantity::Formatter& format) {
  if (scans_summed_ < AvarageTime) {
    sum_dl_ = platform::WrappingAdd(sum_dl_, scan.ScanSumDL);
    sum_ul_ = platform::WrappingAdd(sum_ul_, scan.ScanSumUL);
    ++scans_summed_;
    return;
  }
  const std::int64_t divisor = AvarageTime == 0 ? 1 : AvarageTime;
  average_ = AverageStart() + format.Text(sum_dl_ / divisor).Joined() +
             " UL:" + format.Text(sum_ul_ / divisor).Joined() + " ]";
  scans_summed_ = 0;
  ClearSums();
}

bool NumericLine::ReadMode(const settings::BooleanSetting& mode) {
  const bool on = store_.Read(mode);
  any_mode_ = any_mode_ || on;
  return on;
}

std::string NumericLine::Label() const {
  return any_mode_ ? Joined() : std::string(program::kProductTitle);
}

std::string NumericLine::TrayHint() const {
  return std::string(program::kProductTitle) + " " + Joined();
}

}  // namespace display
