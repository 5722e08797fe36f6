// Sums of 64-bit numbers that wrap at 2^64 instead of overflowing.
#pragma once

#include <cstdint>

namespace platform {

// Return sum, difference and absolute value modulo 2^64. The absolute value of the smallest number
// is that number itself.
[[nodiscard]] constexpr std::int64_t WrappingAdd(std::int64_t a, std::int64_t b) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
}
[[nodiscard]] constexpr std::int64_t WrappingSubtract(std::int64_t a, std::int64_t b) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) - static_cast<std::uint64_t>(b));
}
[[nodiscard]] constexpr std::int64_t WrappingAbs(std::int64_t value) {
  return value < 0 ? static_cast<std::int64_t>(0 - static_cast<std::uint64_t>(value)) : value;
}

}  // namespace platform
