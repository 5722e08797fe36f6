// What the program has stored, as another program sees it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/desktop/driver/win.h"

namespace desktop {

// Under HKEY_CURRENT_USER.
inline constexpr wchar_t kProductKey[] = L"Software\\Korvane\\Dravenlow";
inline constexpr wchar_t kSettingsKey[] = L"Software\\Korvane\\Dravenlow\\Settings";
inline constexpr wchar_t kAdaptersKey[] = L"Software\\Korvane\\Dravenlow\\AdapterDatas";
inline constexpr wchar_t kPlacementKey[] = L"Software\\BrisantoNET";
inline constexpr wchar_t kRunKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";

struct StoredValue {
  DWORD type = REG_NONE;
  std::vector<std::byte> data;

  // "dword 5", "text abc", "binary 0102ff": for comparing and reading.
  [[nodiscard]] std::string Description() const;
  [[nodiscard]] std::optional<std::uint32_t> AsDword() const;
  [[nodiscard]] std::optional<std::string> AsText() const;
  [[nodiscard]] std::optional<double> AsDate() const;
};

// Nothing when key or value is missing.
[[nodiscard]] std::optional<StoredValue> Stored(const wchar_t* key, const std::string& name);
// All values of a key by name, and the names of the keys in it; empty when it is missing.
[[nodiscard]] std::map<std::string, StoredValue> StoredValues(const wchar_t* key);
[[nodiscard]] std::vector<std::string> StoredKeys(const wchar_t* key);

// Of a value under Settings: a number, or nothing; a text, or "(missing)".
[[nodiscard]] std::optional<std::uint32_t> Setting(const std::string& name);
[[nodiscard]] std::string SettingText(const std::string& name);
// A counter: the number in a text, 0 when it is missing. Throws when the text is no number.
[[nodiscard]] std::int64_t Counter(const wchar_t* key, const std::string& name);

// All throw std::runtime_error when the system refuses.
void Store(const wchar_t* key, const std::string& name, const StoredValue& value);
void StoreText(const wchar_t* key, const std::string& name, const std::string& text);
void Store(const std::string& setting, std::uint32_t number);
void Store(const std::string& setting, const std::string& text);
void StoreDate(const std::string& setting, double days);
// Nothing happens when it is missing.
void Remove(const wchar_t* key, const std::string& name);
void RemoveKey(const wchar_t* key);
// Copies values and keys; `to` is made. Nothing happens when `from` is missing.
void CopyKey(const wchar_t* from, const wchar_t* to);
[[nodiscard]] bool KeyExists(const wchar_t* key);

}  // namespace desktop
