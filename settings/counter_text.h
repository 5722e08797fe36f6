// 64-bit byte counters as the decimal texts that the registry keeps.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace settings {

// A stored text that should be a number is none: "'abc' is not a valid integer value". Of a text of
// more than 100 characters only those are quoted, with its length.
class ConversionError : public std::runtime_error {
 public:
  explicit ConversionError(std::string_view text);
};

// An optional sign and decimal digits that fit into 64 bits; throws ConversionError for anything
// else, also for an empty text or one with blanks.
[[nodiscard]] std::int64_t ParseCounter(std::string_view text);

// The decimal digits of the absolute value.
[[nodiscard]] std::string CounterText(std::int64_t value);

}  // namespace settings
