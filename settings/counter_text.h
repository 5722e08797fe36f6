// 64-bit byte counters as the decimal texts that the registry keeps.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace settings {

// Thrown when a stored text that should be a number is none. Its message is like "'abc' is not a
// valid integer value"; of a longer text it quotes the first 100 characters and states the length.
class ConversionError : public std::runtime_error {
 public:
  explicit ConversionError(std::string_view text);
};

// Returns the number in a text of an optional sign and decimal digits that fit into 64 bits. Throws
// ConversionError for any other text, also for an empty text and for one with blanks.
[[nodiscard]] std::int64_t ParseCounter(std::string_view text);

// Returns the decimal digits of the absolute value.
[[nodiscard]] std::string CounterText(std::int64_t value);

}  // namespace settings
