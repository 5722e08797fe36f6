// Byte amounts as the texts that the user reads.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/locale.h"
#include "settings/store.h"

namespace quantity {

// The unit family is read from "ScaleUnit" at each call, the decimal separator from the user's
// number format. Both references outlive it.
class Quantity {
 public:
  Quantity(settings::Store& store, platform::Locale& locale) : store_(store), locale_(locale) {}

  // "1,5|kB|": number, bar, unit, bar. For amounts that are never negative. Empty for an amount in
  // none of the ranges: below zero, in one of the gaps between them, or 1023999999999999 and more.
  [[nodiscard]] std::string FormatQuantity(std::int64_t bytes) const;

  // The same with ranges below zero. Zero bytes are "0|kB|" here.
  [[nodiscard]] std::string FormatSignedQuantity(std::int64_t bytes) const;

 private:
  enum class Sign { kPositiveOnly, kBoth };
  [[nodiscard]] std::string Format(std::int64_t bytes, Sign sign) const;

  settings::Store& store_;
  platform::Locale& locale_;
};

// The Index-th (from 1) piece of S, each piece ending at a Delimiter; empty where the Delimiter is
// missing and for an Index of 0 or less. Of a Delimiter longer than one character only the first is
// taken off with the piece before it.
[[nodiscard]] std::string GetToken(std::string_view S, std::string_view Delimiter, int Index);

// "1,5 kB" of "1,5|kB|"; one blank of an empty text.
[[nodiscard]] std::string NumberAndUnit(std::string_view quantity);

}  // namespace quantity
