// The names under which the values of a network adapter are stored. An adapter is known by its
// description alone.
//
// There are two forms of a name, and they differ for a description with blanks at its ends: the
// include flag that the engine reads and the adapter data keep the blanks, the menu's include flag
// and the statistics do not. Stored values of users depend on it; do not unify them.
#pragma once

#include <string>
#include <string_view>

namespace settings {

// The description in lower case (A to Z only), blanks kept: include flag of the engine (a boolean
// under Settings), adapter data.
[[nodiscard]] std::string AdapterName(std::string_view description);

// The same without blanks at its ends: include flag of the menu, statistics.
[[nodiscard]] std::string TrimmedAdapterName(std::string_view description);

// Suffixes of the adapter data under AdapterDatas, behind AdapterName. The suffixes of the
// statistics, behind TrimmedAdapterName, are the names of the machine-wide statistics.
inline constexpr std::string_view kMacAddressSuffix = "MacAddress";
inline constexpr std::string_view kSpeedSuffix = "Speed";
inline constexpr std::string_view kMtuSuffix = "MTU";

}  // namespace settings
