// The registry by its wide calls.
#pragma once

#include "platform/registry.h"

namespace platform::windows {

class Registry : public platform::Registry {
 public:
  [[nodiscard]] std::unique_ptr<RegistryKey> Open(std::string_view path, KeyAccess access) override;
};

}  // namespace platform::windows
