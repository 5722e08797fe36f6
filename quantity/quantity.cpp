#include "quantity/quantity.h"

#include <array>
#include <cstddef>

#include "platform/text.h"

namespace quantity {
namespace {

struct Range {
  std::int64_t from;   // inclusive
  std::int64_t up_to;  // exclusive
  int divisions;       // by 1024
  std::size_t keep;    // characters of the number
};

// Each unit begins at 1000 of the unit before it. Each upper bound is one less than the next lower
// bound, so that 102399, 1023999 and so on have no text at all. These gaps are kept, and tests
// check them.
constexpr Range kPositiveRanges[] = {
    {1, 1024, 1, 3},
    {1024, 10240, 1, 3},
    {10240, 102399, 1, 4},
    {102400, 1023999, 1, 5},
    {1024000, 10239999, 2, 4},
    {10240000, 102399999, 2, 5},
    {102400000, 1023999999, 2, 6},
    {1024000000, 10239999999, 3, 5},
    {10240000000, 102399999999, 3, 6},
    {102400000000, 1023999999999, 3, 7},
    {1024000000000, 10239999999999, 4, 6},
    {10240000000000, 102399999999999, 4, 7},
    {102400000000000, 1023999999999999, 4, 8},
};

// The negative ranges do not mirror the positive ones exactly: the gaps lie at -1023 and at the
// round numbers. One more character is kept, for the sign. The first range includes zero bytes, but
// not zero bits.
constexpr Range kNegativeRanges[] = {
    {-1022, 1, 1, 4},
    {-10240, -1024, 1, 4},
    {-102399, -10240, 1, 5},
    {-1023999, -102400, 1, 6},
    {-10239999, -1024000, 2, 5},
    {-102399999, -10240000, 2, 6},
    {-1023999999, -102400000, 2, 7},
    {-10239999999, -1024000000, 3, 6},
    {-102399999999, -10240000000, 3, 7},
    {-1023999999999, -102400000000, 3, 8},
    {-10239999999999, -1024000000000, 4, 7},
    {-102399999999999, -10240000000000, 4, 8},
    {-1023999999999999, -102400000000000, 4, 9},
};

struct UnitWords {
  std::string_view of_zero;
  std::array<std::string_view, 4> by_divisions;
};

// The unit of zero bits lacks the final "s" that all other units of bits have; this is kept.
constexpr UnitWords kByteWords = {"kB", {"kB", "MB", "GB", "TB"}};
constexpr UnitWords kBitWords = {"kbit", {"kbits", "Mbits", "Gbits", "Tbits"}};
// The text has a comma, whatever the user's separator is.
constexpr std::string_view kZero = "0,0";

bool Matches(const Range& range, std::int64_t n) { return range.from <= n && n < range.up_to; }

// Returns n / 1024^divisions in ten-thousandths, rounded to the nearest, ties to even. The result
// is exact: a factor of 16 is taken out of 10000, so that the product fits into 64 bits for every n
// of the ranges.
std::int64_t TenThousandths(std::int64_t n, int divisions) {
  const std::uint64_t product = static_cast<std::uint64_t>(n < 0 ? -n : n) * 625;
  const int shift = 10 * divisions - 4;
  const std::uint64_t half = std::uint64_t{1} << (shift - 1);
  const std::uint64_t rest = product & ((half << 1) - 1);
  std::uint64_t rounded = product >> shift;
  if (rest > half || (rest == half && rounded % 2 == 1)) ++rounded;
  return static_cast<std::int64_t>(rounded);
}

// The number is cut, not rounded, to the characters that the range keeps.
std::string NumberText(std::int64_t n, const Range& range, std::string_view separator) {
  const std::int64_t value = TenThousandths(n, range.divisions);
  std::string text = n < 0 ? "-" : "";
  text += std::to_string(value / 10000);
  if (value % 10000 != 0) {
    std::string decimals = std::to_string(10000 + value % 10000).substr(1);
    decimals.erase(decimals.find_last_not_of('0') + 1);
    text += separator;
    text += decimals;
  }
  return platform::CutCharacters(text, range.keep);
}

// Returns the amount in the unit family: a byte has eight bits. An amount that is too large wraps.
std::int64_t Amount(std::int64_t bytes, Units units) {
  if (units == Units::kBytes) return bytes;
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(bytes) * 8);
}

std::string WithBars(const QuantityText& text) {
  return text.number.empty() ? "" : text.number + '|' + text.unit + '|';
}

}  // namespace

QuantityText Formatter::Text(std::int64_t bytes) const {
  return Format(bytes, Sign::kPositiveOnly);
}

QuantityText Formatter::SignedText(std::int64_t bytes) const { return Format(bytes, Sign::kBoth); }

QuantityText Formatter::Format(std::int64_t bytes, Sign sign) const {
  const UnitWords& words = units_ == Units::kBytes ? kByteWords : kBitWords;
  const std::int64_t n = Amount(bytes, units_);
  const bool zero_is_in_no_range = sign == Sign::kPositiveOnly || units_ == Units::kBits;
  if (n == 0 && zero_is_in_no_range) return {std::string(kZero), std::string(words.of_zero)};

  const auto text_of = [&](const Range& range) {
    return QuantityText{
        NumberText(n, range, locale_.DecimalSeparator()),
        std::string(words.by_divisions[static_cast<std::size_t>(range.divisions - 1)])};
  };
  // No two ranges overlap, so the first that matches is the only one.
  for (const Range& range : kPositiveRanges) {
    if (Matches(range, n)) return text_of(range);
  }
  if (sign == Sign::kPositiveOnly) return {};
  for (const Range& range : kNegativeRanges) {
    if (Matches(range, n)) return text_of(range);
  }
  return {};
}

Formatter Quantity::ForStep() const {
  const bool bytes = store_.Read(settings::setting::ScaleUnit) == 0;
  return {bytes ? Units::kBytes : Units::kBits, locale_};
}

std::string Quantity::FormatQuantity(std::int64_t bytes) const {
  return WithBars(ForStep().Text(bytes));
}

std::string Quantity::FormatSignedQuantity(std::int64_t bytes) const {
  return WithBars(ForStep().SignedText(bytes));
}

std::string GetToken(std::string_view S, std::string_view Delimiter, int Index) {
  const std::size_t taken_off = platform::CutCharacters(Delimiter, 1).size();
  std::string_view token;
  for (int i = 0; i < Index; ++i) {
    const std::size_t at = Delimiter.empty() ? std::string_view::npos : S.find(Delimiter);
    if (at == std::string_view::npos) return {};  // without its delimiter there is no such piece
    token = S.substr(0, at);
    S.remove_prefix(at + taken_off);
  }
  return std::string(token);
}

}  // namespace quantity
