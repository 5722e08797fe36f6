// Byte amounts as the texts that the user reads.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/locale.h"
#include "settings/store.h"

namespace quantity {

// An amount to be read: "1,5" and "kB". Both are empty for an amount that has no text.
struct QuantityText {
  std::string number;
  std::string unit;

  // "1,5 kB"; one blank of an amount without a text.
  [[nodiscard]] std::string Joined() const { return number + ' ' + unit; }
};

// The unit family: kB, MB and so on, or kbits, Mbits and so on.
enum class Units { kBytes, kBits };

// Formats in one unit family, for a step that shows many amounts.
class Formatter {
 public:
  // The locale gives the decimal separator of the user's number format; it outlives the formatter.
  Formatter(Units units, platform::Locale& locale) : units_(units), locale_(locale) {}

  // For amounts that are never negative. No text for an amount in none of the ranges: below zero,
  // in one of the gaps between them, or 1023999999999999 and more.
  [[nodiscard]] QuantityText Text(std::int64_t bytes) const;

  // The same with ranges below zero. Zero bytes are "0", "kB" here.
  [[nodiscard]] QuantityText SignedText(std::int64_t bytes) const;

 private:
  enum class Sign { kPositiveOnly, kBoth };
  [[nodiscard]] QuantityText Format(std::int64_t bytes, Sign sign) const;

  Units units_;
  platform::Locale& locale_;
};

class Quantity {
 public:
  // Both outlive it.
  Quantity(settings::Store& store, platform::Locale& locale) : store_(store), locale_(locale) {}

  // For one step, in the unit family that "ScaleUnit" has now.
  [[nodiscard]] Formatter ForStep() const;

  // "1,5|kB|": number, bar, unit, bar, as the formatter has them; empty for an amount without a
  // text. "ScaleUnit" is read at each call.
  [[nodiscard]] std::string FormatQuantity(std::int64_t bytes) const;
  [[nodiscard]] std::string FormatSignedQuantity(std::int64_t bytes) const;

 private:
  settings::Store& store_;
  platform::Locale& locale_;
};

// The Index-th (from 1) piece of S, each piece ending at a Delimiter; empty where the Delimiter is
// missing and for an Index of 0 or less. Of a Delimiter longer than one character only the first is
// taken off with the piece before it.
[[nodiscard]] std::string GetToken(std::string_view S, std::string_view Delimiter, int Index);

}  // namespace quantity
