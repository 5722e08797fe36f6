// What the program has stored, as another program sees it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace desktop {

// Under HKEY_CURRENT_USER.
inline constexpr char kProductKey[] = "Software\\Korvane\\Dravenlow";
inline constexpr char kSettingsKey[] = "Software\\Korvane\\Dravenlow\\Settings";
inline constexpr char kAdaptersKey[] = "Software\\Korvane\\Dravenlow\\AdapterDatas";
inline constexpr char kPlacementKey[] = "Software\\BrisantoNET";
inline constexpr char kRunKey[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

// A value for comparing and reading: "dword 5", "text abc", "8 bytes", or "(missing)".
[[nodiscard]] std::string Stored(std::string_view key, std::string_view name);
[[nodiscard]] bool IsStored(std::string_view key, std::string_view name);
// Of a value under Settings.
[[nodiscard]] std::string Setting(std::string_view name);

// All throw std::runtime_error when the system refuses.
void Store(std::string_view setting, std::uint32_t number);
void Store(std::string_view setting, std::string_view text);
void StoreText(std::string_view key, std::string_view name, std::string_view text);
// Nothing happens when it is missing.
void Remove(std::string_view key, std::string_view name);
// With all that is in it.
void RemoveKey(std::string_view key);

}  // namespace desktop
