// The names under which the values of a network adapter are stored. An adapter is known by its
// description alone.
//
// A name has two forms, which differ for a description with blanks at its ends: the include flag
// that the engine reads and the adapter data keep the blanks; the menu's include flag and the
// statistics drop them. Both forms are kept; do not unify them.
#pragma once

#include <string>
#include <string_view>

namespace settings {

// Returns the description in lower case (A to Z only) with its blanks kept. It names the include
// flag of the engine (a boolean under Settings) and the adapter data.
[[nodiscard]] std::string AdapterName(std::string_view description);

// Returns the same text without blanks at its ends. It names the include flag of the menu and the
// statistics.
[[nodiscard]] std::string TrimmedAdapterName(std::string_view description);

// Suffixes of the adapter data under AdapterDatas, behind AdapterName. The suffixes of the
// statistics, behind TrimmedAdapterName, are the names of the machine-wide statistics.
inline constexpr std::string_view kMacAddressSuffix = "MacAddress";
inline constexpr std::string_view kSpeedSuffix = "Speed";
inline constexpr std::string_view kMtuSuffix = "MTU";

}  // namespace settings
