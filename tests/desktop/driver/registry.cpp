#include "tests/desktop/driver/registry.h"

#include <cstring>
#include <stdexcept>

#include "platform/windows/handle.h"
#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"

namespace desktop {
namespace {

using platform::windows::FromWide;
using platform::windows::ThrowSystemError;
using platform::windows::ToWide;

struct KeyKind {
  using Raw = HKEY;
  static constexpr Raw None() { return nullptr; }
  static void Close(Raw key) { ::RegCloseKey(key); }
};
using Key = platform::windows::Handle<KeyKind>;

constexpr DWORD kLongestName = 16384;
constexpr DWORD kMostData = 65536;

void Check(const char* call, LSTATUS result) {
  if (result != ERROR_SUCCESS) ThrowSystemError(call, static_cast<DWORD>(result));
}

Key Open(const wchar_t* path, REGSAM rights) {
  HKEY key = nullptr;
  if (::RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, rights, &key) != ERROR_SUCCESS) return Key();
  return Key(key);
}

Key Make(const wchar_t* path) {
  HKEY key = nullptr;
  Check("RegCreateKeyEx", ::RegCreateKeyExW(HKEY_CURRENT_USER, path, 0, nullptr, 0,
                                            KEY_READ | KEY_WRITE, nullptr, &key, nullptr));
  return Key(key);
}

std::string Hex(const std::vector<std::byte>& data) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (const std::byte byte : data) {
    text += kDigits[std::to_integer<unsigned>(byte) >> 4];
    text += kDigits[std::to_integer<unsigned>(byte) & 15U];
  }
  return text;
}

template <class Number>
std::optional<Number> NumberFrom(const std::vector<std::byte>& data) {
  Number number{};
  if (data.size() != sizeof(number)) return std::nullopt;
  std::memcpy(&number, data.data(), sizeof(number));
  return number;
}

StoredValue ValueFrom(DWORD type, const void* data, std::size_t size) {
  const auto* bytes = static_cast<const std::byte*>(data);
  return {type, {bytes, bytes + size}};
}

StoredValue TextValue(const std::string& text) {
  const std::wstring wide = ToWide(text);
  return ValueFrom(REG_SZ, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
}

}  // namespace

std::string StoredValue::Description() const {
  if (const auto number = AsDword()) return "dword " + std::to_string(*number);
  if (const auto text = AsText()) return "text " + *text;
  return (type == REG_BINARY ? "binary " : "type " + std::to_string(type) + " ") + Hex(data);
}

std::optional<std::uint32_t> StoredValue::AsDword() const {
  return type == REG_DWORD ? NumberFrom<std::uint32_t>(data) : std::nullopt;
}

std::optional<std::string> StoredValue::AsText() const {
  if (type != REG_SZ) return std::nullopt;
  std::wstring text(data.size() / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), data.data(), text.size() * sizeof(wchar_t));
  return FromWide(text.substr(0, text.find(L'\0')));
}

std::optional<double> StoredValue::AsDate() const {
  return type == REG_BINARY ? NumberFrom<double>(data) : std::nullopt;
}

std::optional<StoredValue> Stored(const wchar_t* key, const std::string& name) {
  const Key opened = Open(key, KEY_READ);
  if (!opened) return std::nullopt;
  std::vector<std::byte> data(kMostData);
  DWORD type = REG_NONE;
  auto size = static_cast<DWORD>(data.size());
  if (::RegQueryValueExW(opened.get(), ToWide(name).c_str(), nullptr, &type,
                         reinterpret_cast<BYTE*>(data.data()), &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  return ValueFrom(type, data.data(), size);
}

std::map<std::string, StoredValue> StoredValues(const wchar_t* key) {
  std::map<std::string, StoredValue> values;
  const Key opened = Open(key, KEY_READ);
  if (!opened) return values;
  std::wstring name(kLongestName, L'\0');
  std::vector<std::byte> data(kMostData);
  for (DWORD index = 0;; ++index) {
    auto length = kLongestName;
    auto size = kMostData;
    DWORD type = REG_NONE;
    const LSTATUS result = ::RegEnumValueW(opened.get(), index, name.data(), &length, nullptr,
                                           &type, reinterpret_cast<BYTE*>(data.data()), &size);
    if (result == ERROR_NO_MORE_ITEMS) return values;
    Check("RegEnumValue", result);
    values.emplace(FromWide(name.substr(0, length)), ValueFrom(type, data.data(), size));
  }
}

std::vector<std::string> StoredKeys(const wchar_t* key) {
  std::vector<std::string> names;
  const Key opened = Open(key, KEY_READ);
  if (!opened) return names;
  std::wstring name(kLongestName, L'\0');
  for (DWORD index = 0;; ++index) {
    auto length = kLongestName;
    const LSTATUS result = ::RegEnumKeyExW(opened.get(), index, name.data(), &length, nullptr,
                                           nullptr, nullptr, nullptr);
    if (result == ERROR_NO_MORE_ITEMS) return names;
    Check("RegEnumKeyEx", result);
    names.push_back(FromWide(name.substr(0, length)));
  }
}

std::optional<std::uint32_t> Setting(const std::string& name) {
  const auto value = Stored(kSettingsKey, name);
  return value ? value->AsDword() : std::nullopt;
}

std::string SettingText(const std::string& name) {
  const auto value = Stored(kSettingsKey, name);
  return value ? value->AsText().value_or("(no text)") : "(missing)";
}

std::int64_t Counter(const wchar_t* key, const std::string& name) {
  const auto value = Stored(key, name);
  return value ? std::stoll(value->AsText().value_or("(no text)")) : 0;
}

void Store(const wchar_t* key, const std::string& name, const StoredValue& value) {
  Check("RegSetValueEx", ::RegSetValueExW(Make(key).get(), ToWide(name).c_str(), 0, value.type,
                                          reinterpret_cast<const BYTE*>(value.data.data()),
                                          static_cast<DWORD>(value.data.size())));
}

void Store(const std::string& setting, std::uint32_t number) {
  Store(kSettingsKey, setting, ValueFrom(REG_DWORD, &number, sizeof(number)));
}

void StoreText(const wchar_t* key, const std::string& name, const std::string& text) {
  Store(key, name, TextValue(text));
}

void Store(const std::string& setting, const std::string& text) {
  StoreText(kSettingsKey, setting, text);
}

void StoreDate(const std::string& setting, double days) {
  Store(kSettingsKey, setting, ValueFrom(REG_BINARY, &days, sizeof(days)));
}

void Remove(const wchar_t* key, const std::string& name) {
  const Key opened = Open(key, KEY_WRITE);
  if (!opened) return;
  const LSTATUS result = ::RegDeleteValueW(opened.get(), ToWide(name).c_str());
  if (result != ERROR_FILE_NOT_FOUND) Check("RegDeleteValue", result);
}

void RemoveKey(const wchar_t* key) {
  const LSTATUS result = ::RegDeleteTreeW(HKEY_CURRENT_USER, key);
  if (result != ERROR_FILE_NOT_FOUND) Check("RegDeleteTree", result);
}

void CopyKey(const wchar_t* from, const wchar_t* to) {
  const Key source = Open(from, KEY_READ);
  if (!source) return;
  Check("RegCopyTree", ::RegCopyTreeW(source.get(), nullptr, Make(to).get()));
}

bool KeyExists(const wchar_t* key) { return static_cast<bool>(Open(key, KEY_READ)); }

}  // namespace desktop
