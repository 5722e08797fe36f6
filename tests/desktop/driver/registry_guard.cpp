#include "tests/desktop/driver/registry_guard.h"

#include <exception>
#include <iostream>

namespace desktop {
namespace {

// Where the user's values are while tests run.
constexpr wchar_t kAside[] = L"Software\\Tremolux set aside by tests";
constexpr wchar_t kProductAside[] = L"Software\\Tremolux set aside by tests\\Product";
constexpr wchar_t kPlacementAside[] = L"Software\\Tremolux set aside by tests\\Placement";
constexpr wchar_t kRunAside[] = L"Software\\Tremolux set aside by tests\\Run";

// The one value of the program in a key that is not its own.
constexpr char kRunValue[] = "BrisantoXP";

void CopyRunValue(const wchar_t* from, const wchar_t* to) {
  if (const auto value = Stored(from, kRunValue)) Store(to, kRunValue, *value);
}

void SetAside() {
  CopyKey(kProductKey, kProductAside);
  CopyKey(kPlacementKey, kPlacementAside);
  CopyRunValue(kRunKey, kRunAside);
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
  if (KeyExists(kAside)) PutBack();
  SetAside();
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
