// The keys of the user's registry in which the windows keep their places.
#pragma once

#include <string_view>

namespace settings::placement_key {

inline constexpr std::string_view kMain = "\\Software\\BrisantoNET\\Settings\\MainScreen";
inline constexpr std::string_view kConnInfo = "\\Software\\BrisantoNET\\Settings\\ConnInfoScreen";
inline constexpr std::string_view kSpecificConnInfo =
    "\\Software\\BrisantoNET\\Settings\\SpecificConnInfoScreen";
inline constexpr std::string_view kSettings = "\\Software\\BrisantoNET\\Settings\\SettingsScreen";
inline constexpr std::string_view kAddTitles = "\\Software\\BrisantoNET\\Settings\\AddTitlesScreen";

}  // namespace settings::placement_key
