#include "tests/desktop/driver/registry_guard.h"

#include <exception>
#include <iostream>

#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/registry.h"
#include "tests/desktop/driver/win.h"

namespace desktop {
namespace {

using platform::windows::ToWide;

// Where the user's values are while tests run.
constexpr char kAside[] = "Software\\Tremolux set aside by tests";
constexpr char kProductAside[] = "Software\\Tremolux set aside by tests\\Product";
constexpr char kPlacementAside[] = "Software\\Tremolux set aside by tests\\Placement";
constexpr char kRunAside[] = "Software\\Tremolux set aside by tests\\Run";

// The one value of the program in a key that is not its own.
constexpr char kRunValue[] = "BrisantoXP";

void Check(const char* call, LSTATUS result) {
  if (result != ERROR_SUCCESS) {
    platform::windows::ThrowSystemError(call, static_cast<DWORD>(result));
  }
}

// Values and keys; nothing when `from` is missing.
void CopyKey(const char* from, const char* to) {
  HKEY made = nullptr;
  if (::RegOpenKeyExW(HKEY_CURRENT_USER, ToWide(from).c_str(), 0, KEY_READ, &made) !=
      ERROR_SUCCESS) {
    return;
  }
  ::RegCloseKey(made);
  Check("RegCreateKey", ::RegCreateKeyW(HKEY_CURRENT_USER, ToWide(to).c_str(), &made));
  const LSTATUS result = ::RegCopyTreeW(HKEY_CURRENT_USER, ToWide(from).c_str(), made);
  ::RegCloseKey(made);
  Check("RegCopyTree", result);
}

void CopyRunValue(const char* from, const char* to) {
  const std::string value = Stored(from, kRunValue);
  if (value.starts_with("text ")) StoreText(to, kRunValue, value.substr(5));
}

void PutBack() {
  RegistryGuard::RemoveStored();
  CopyKey(kProductAside, kProductKey);
  CopyKey(kPlacementAside, kPlacementKey);
  CopyRunValue(kRunAside, kRunKey);
  RemoveKey(kAside);
}

}  // namespace

RegistryGuard::RegistryGuard() {
  if (IsStored(kAside, "")) PutBack();
  StoreText(kAside, "", "in use");
  CopyKey(kProductKey, kProductAside);
  CopyKey(kPlacementKey, kPlacementAside);
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
  RemoveKey(kProductKey);
  RemoveKey(kPlacementKey);
  Remove(kRunKey, kRunValue);
}

}  // namespace desktop
