// Byte amounts as the texts that the user reads.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/locale.h"
#include "settings/store.h"

namespace quantity {

// The text of an amount, such as "1,5" and "kB". Both are empty for an amount that has no text.
struct QuantityText {
  std::string number;
  std::string unit;

  // Returns a text like "1,5 kB", or one blank for an amount without a text.
  [[nodiscard]] std::string Joined() const { return number + ' ' + unit; }
};

// The unit family: kB, MB and so on, or kbits, Mbits and so on.
enum class Units { kBytes, kBits };

// Formats in one unit family, for a step that shows many amounts.
class Formatter {
 public:
  // The locale gives the decimal separator of the user's number format; it outlives the formatter.
  Formatter(Units units, platform::Locale& locale) : units_(units), locale_(locale) {}

  // Formats amounts that are never negative. An amount in none of the ranges has no text: below
  // zero, in one of the gaps between the ranges, or 1023999999999999 and more.
  [[nodiscard]] QuantityText Text(std::int64_t bytes) const;

  // Formats in the same way, with ranges below zero too. Zero bytes give "0" and "kB" here.
  [[nodiscard]] QuantityText SignedText(std::int64_t bytes) const;

 private:
  enum class Sign { kPositiveOnly, kBoth };
  [[nodiscard]] QuantityText Format(std::int64_t bytes, Sign sign) const;

  Units units_;
  platform::Locale& locale_;
};

class Quantity {
 public:
  // Both arguments outlive the quantity.
  Quantity(settings::Store& store, platform::Locale& locale) : store_(store), locale_(locale) {}

  // Returns a formatter for one step, in the unit family that "ScaleUnit" has now.
  [[nodiscard]] Formatter ForStep() const;

  // Return number, bar, unit and bar, such as "1,5|kB|", or an empty text for an amount without a
  // text. "ScaleUnit" is read at each call.
  [[nodiscard]] std::string FormatQuantity(std::int64_t bytes) const;
  [[nodiscard]] std::string FormatSignedQuantity(std::int64_t bytes) const;

 private:
  settings::Store& store_;
  platform::Locale& locale_;
};

// Returns the Index-th piece of S, counted from 1; each piece ends at a Delimiter. Returns an empty
// text when that Delimiter is missing and when Index is 0 or less. When a Delimiter is longer than
// one character, only its first character is removed together with the piece before it.
[[nodiscard]] std::string GetToken(std::string_view S, std::string_view Delimiter, int Index);

}  // namespace quantity
