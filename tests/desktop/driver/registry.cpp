#include "tests/desktop/driver/registry.h"

#include <stdexcept>

#include "platform/windows/services/services.h"
#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/win32.h"

namespace desktop {
namespace {

using platform::KeyAccess;

// Null when it is missing.
std::unique_ptr<platform::RegistryKey> Open(std::string_view key) {
  return platform::windows::Registry().Open(key, KeyAccess::kExisting);
}

std::unique_ptr<platform::RegistryKey> Make(std::string_view key) {
  auto made = platform::windows::Registry().Open(key, KeyAccess::kCreate);
  if (made == nullptr) throw std::runtime_error("no registry key " + std::string(key));
  return made;
}

}  // namespace

std::string Stored(std::string_view key, std::string_view name) {
  const auto opened = Open(key);
  if (opened == nullptr) return "(missing)";
  if (const auto number = opened->ReadDword(name)) return "dword " + std::to_string(*number);
  if (const auto text = opened->ReadText(name)) return "text " + *text;
  if (const auto bytes = opened->ReadBinary(name)) return std::to_string(bytes->size()) + " bytes";
  return "(missing)";
}

bool IsStored(std::string_view key, std::string_view name) {
  return Stored(key, name) != "(missing)";
}

std::string Setting(std::string_view name) { return Stored(kSettingsKey, name); }

void Store(std::string_view setting, std::uint32_t number) {
  Make(kSettingsKey)->WriteDword(setting, number);
}

void Store(std::string_view setting, std::string_view text) {
  StoreText(kSettingsKey, setting, text);
}

void StoreText(std::string_view key, std::string_view name, std::string_view text) {
  Make(key)->WriteText(name, text);
}

void Remove(std::string_view key, std::string_view name) {
  if (const auto opened = Open(key)) opened->Delete(name);
}

void RemoveKey(std::string_view key) {
  const LSTATUS result =
      ::RegDeleteTreeW(HKEY_CURRENT_USER, platform::windows::ToWide(key).c_str());
  if (result != ERROR_SUCCESS && result != ERROR_FILE_NOT_FOUND) {
    platform::windows::ThrowSystemError("RegDeleteTree", static_cast<DWORD>(result));
  }
}

}  // namespace desktop
