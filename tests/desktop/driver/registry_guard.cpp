#include "tests/desktop/driver/registry_guard.h"

#include <exception>
#include <iostream>

#include "platform/windows/services/services.h"
#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/registry.h"
#include "tests/desktop/driver/win.h"

namespace desktop {
namespace {

using platform::windows::ToWide;

// Where the user's values are while tests run.
constexpr char kAside[] = "Software\\Tremolux set aside by tests";
constexpr char kRunAside[] = "Software\\Tremolux set aside by tests\\Run";
constexpr struct {
  const char* key;
  const char* aside;
} kKeys[] = {{kProductKey, "Software\\Tremolux set aside by tests\\Product"},
             {kPlacementKey, "Software\\Tremolux set aside by tests\\Placement"}};

// The one value of the program in a key that is not its own.
constexpr char kRunValue[] = "BrisantoXP";

// Values and keys; nothing when `from` is missing.
void CopyKey(const char* from, const char* to) {
  if (platform::windows::Registry().Open(from, platform::KeyAccess::kReadOnly) == nullptr) return;
  HKEY made = nullptr;
  LSTATUS result = ::RegCreateKeyW(HKEY_CURRENT_USER, ToWide(to).c_str(), &made);
  if (result == ERROR_SUCCESS) {
    result = ::RegCopyTreeW(HKEY_CURRENT_USER, ToWide(from).c_str(), made);
    ::RegCloseKey(made);
  }
  if (result != ERROR_SUCCESS) {
    platform::windows::ThrowSystemError("copying a key", static_cast<DWORD>(result));
  }
}

void CopyRunValue(const char* from, const char* to) {
  const std::string value = Stored(from, kRunValue);
  if (value.starts_with("text ")) StoreText(to, kRunValue, value.substr(5));
}

void PutBack() {
  RegistryGuard::RemoveStored();
  for (const auto& [key, aside] : kKeys) CopyKey(aside, key);
  CopyRunValue(kRunAside, kRunKey);
  RemoveKey(kAside);
}

}  // namespace

RegistryGuard::RegistryGuard() {
  if (IsStored(kAside, "")) PutBack();
  StoreText(kAside, "", "in use");
  for (const auto& [key, aside] : kKeys) CopyKey(key, aside);
  CopyRunValue(kRunKey, kRunAside);
}

RegistryGuard::~RegistryGuard() {
  try {
    PutBack();
  } catch (const std::exception& error) {
    std::cerr << "What the program had stored before the tests is still under HKEY_CURRENT_USER: "
              << error.what() << "\n";
  }
}

void RegistryGuard::RemoveStored() {
  for (const auto& [key, aside] : kKeys) RemoveKey(key);
  Remove(kRunKey, kRunValue);
}

}  // namespace desktop
