// Keeps what the user's copy of the program has stored safe from tests.
#pragma once

namespace desktop {

// Puts everything that the program stores aside while this lives, and back at the end. If a run of
// tests dies before that, the next guard puts it back first. Throws std::runtime_error when the
// registry refuses.
class RegistryGuard {
 public:
  RegistryGuard();
  ~RegistryGuard();
  RegistryGuard(const RegistryGuard&) = delete;
  RegistryGuard& operator=(const RegistryGuard&) = delete;

  // As after the installation: the program has stored nothing yet.
  static void RemoveStored();
};

}  // namespace desktop
