#include "settings/counter_text.h"

#include <charconv>

#include "platform/text.h"
#include "platform/wrapping.h"

namespace settings {
namespace {

constexpr std::size_t kLongestQuote = 100;  // characters

// Shortens the text so that it fits into a line of the log.
std::string Quoted(std::string_view text) {
  const std::string beginning = platform::CutCharacters(text, kLongestQuote);
  std::string quoted = "'" + beginning + "'";
  if (beginning.size() < text.size()) {
    quoted += " and so on, " + std::to_string(text.size()) + " bytes,";
  }
  return quoted;
}

}  // namespace

ConversionError::ConversionError(std::string_view text)
    : std::runtime_error(Quoted(text) + " is not a valid integer value") {}

std::int64_t ParseCounter(std::string_view text) {
  std::string_view digits = text;
  // from_chars takes only the minus sign; "+-5" must stay an error.
  if (digits.starts_with('+')) {
    digits.remove_prefix(1);
    if (digits.starts_with('-')) throw ConversionError(text);
  }
  std::int64_t value = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, value);
  if (error != std::errc() || stop != end) throw ConversionError(text);
  return value;
}

std::string CounterText(std::int64_t value) {
  // The smallest number has no absolute value in 64 bits. Its text keeps the sign, so that it can
  // be read again: digits beyond the range would make every later scan fail.
  return std::to_string(platform::WrappingAbs(value));
}

}  // namespace settings
