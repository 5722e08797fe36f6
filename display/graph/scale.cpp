#include "display/graph/scale.h"

#include <algorithm>
#include <array>
#include <limits>

namespace display {
namespace {

constexpr std::int64_t kStep = 1024;  // from one unit to the next, as everywhere in the program
constexpr std::int64_t kNextUnitAt = 1000;
constexpr std::int64_t kBitsPerByte = 8;

// An idle line has a scale too: one kilobyte or kilobit.
constexpr std::int64_t kSmallestUpperEdge = 1;

// The scale leaves zero when all amounts in sight are above this part of the largest.
constexpr std::int64_t kSteadyNumerator = 4;
constexpr std::int64_t kSteadyDenominator = 5;

// The smallest of 1, 2, 5, 10, 20 ... that is not below `value`, which is about 1000 at the most.
std::int64_t RoundUp(std::int64_t value) {
  for (std::int64_t decade = 1;; decade *= 10) {
    for (const std::int64_t factor : {1, 2, 5}) {
      if (factor * decade >= value) return factor * decade;
    }
  }
}

// The largest of 0, 1, 2, 5, 10, 20 ... that is not above `value`.
std::int64_t RoundDown(std::int64_t value) {
  std::int64_t round = 0;
  for (std::int64_t next = RoundUp(1); next <= value; next = RoundUp(next + 1)) round = next;
  return round;
}

// The unit of the amount: how many bytes (or bits) one is.
std::int64_t UnitOf(std::int64_t amount) {
  std::int64_t unit = kStep;
  while (amount / unit >= kNextUnitAt) unit *= kStep;
  return unit;
}

std::int64_t InUnits(std::int64_t bytes, ScaleUnits units) {
  return units == ScaleUnits::kKBits ? bytes * kBitsPerByte : bytes;
}

std::int64_t AutomaticEdge(std::int64_t peak, ScaleUnits units) {
  const std::int64_t amount = InUnits(peak, units);
  const std::int64_t unit = UnitOf(amount);
  const std::int64_t whole = std::max(kSmallestUpperEdge, (amount + unit - 1) / unit);
  // A thousand of a unit is written in the next one, so the edge is one of that.
  const std::int64_t round = RoundUp(whole);
  const std::int64_t edge = round < kNextUnitAt ? round * unit : kStep * unit;
  return units == ScaleUnits::kKBits ? edge / kBitsPerByte : edge;
}

// A round amount at half of `smallest` or below.
std::int64_t LowerEdge(std::int64_t smallest, ScaleUnits units) {
  const std::int64_t amount = InUnits(smallest, units) / 2;
  std::int64_t unit = UnitOf(amount);
  if (amount < unit) unit /= kStep;  // 1000 to 1023 of a unit are written in the next one
  if (unit < kStep) return 0;
  const std::int64_t edge = RoundDown(std::min(amount / unit, kNextUnitAt - 1)) * unit;
  return units == ScaleUnits::kKBits ? edge / kBitsPerByte : edge;
}

}  // namespace

int GraphScale::HeightOf(std::int64_t amount, int height) const {
  if (amount <= 0 || height <= 0) return 0;
  const std::int64_t above = std::clamp(amount, low, high) - low;
  return static_cast<int>(std::max<std::int64_t>(1, above * height / (high - low)));
}

GraphScale ScaleFor(std::span<const GraphSample> in_sight, const ScaleRule& choice) {
  std::int64_t peak = 0;
  std::int64_t smallest = std::numeric_limits<std::int64_t>::max();
  for (const GraphSample& sample : in_sight) {
    peak = std::max({peak, std::int64_t{sample.in}, std::int64_t{sample.out}});
    smallest = std::min({smallest, std::int64_t{sample.in}, std::int64_t{sample.out}});
  }
  GraphScale scale;
  scale.high = choice.AutoScale ? AutomaticEdge(peak, choice.ScaleUnits)
                                : std::max<std::int64_t>(1, choice.SpeedLimit);
  const bool steady = !in_sight.empty() && smallest * kSteadyDenominator > peak * kSteadyNumerator;
  if (!choice.ZeroBased && steady) {
    scale.low = LowerEdge(std::min(smallest, scale.high), choice.ScaleUnits);
  }
  return scale;
}

std::string ScaleText(std::int64_t bytes_per_second, ScaleUnits units,
                      std::string_view decimal_separator) {
  static constexpr std::array<std::string_view, 5> kPrefixes = {"k", "M", "G", "T", "P"};
  const std::int64_t amount = InUnits(bytes_per_second, units);
  const std::int64_t unit = UnitOf(amount);
  std::size_t prefix = 0;
  for (std::int64_t each = kStep; each < unit; each *= kStep) ++prefix;
  std::string text = std::to_string(amount / unit);
  const std::int64_t tenths = amount % unit * 10 / unit;
  if (amount / unit < 100 && tenths != 0) {
    text += decimal_separator;
    text += std::to_string(tenths);
  }
  text += ' ';
  text += kPrefixes[std::min(prefix, kPrefixes.size() - 1)];
  text += units == ScaleUnits::kKBits ? 'b' : 'B';
  return text;
}

}  // namespace display
