// The system that the contract tests run against, and what only its surroundings can do: see what
// the services left behind, and play the other programs. The build chooses the body.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/interface_table.h"
#include "platform/locale.h"
#include "platform/registry.h"
#include "platform/single_instance.h"
#include "platform/sockets.h"

namespace contract {

class World {
 public:
  virtual ~World() = default;

  virtual platform::InterfaceTable& InterfaceTable() = 0;
  virtual platform::Registry& Registry() = 0;
  virtual platform::Sockets& Sockets() = 0;
  virtual platform::SingleInstance& SingleInstance() = 0;
  virtual platform::Clock& Clock() = 0;
  virtual platform::Files& Files() = 0;
  virtual platform::Locale& Locale() = 0;
  virtual platform::Clipboard& Clipboard() = 0;

  // Writes a registry value of any type, in a key that is there.
  virtual void SetRawValue(std::string_view path, std::string_view name, std::uint32_t type,
                           std::span<const std::byte> data) = 0;
  // The raw bytes of a registry value, and its type.
  struct RawValue {
    std::uint32_t type = 0;
    std::string data;
  };
  [[nodiscard]] virtual std::optional<RawValue> GetRawValue(std::string_view path,
                                                            std::string_view name) = 0;
  // Removes a key with all that is in it.
  virtual void RemoveKey(std::string_view path) = 0;

  // A folder of the test's own, empty at first, with a backslash at its end.
  [[nodiscard]] virtual std::string ScratchFolder() = 0;
  virtual void MakeFolder(std::string_view path) = 0;
  // Another program has a file open and shares it with nobody, as long as `meanwhile` runs.
  virtual void HoldFile(std::string_view path, const std::function<void()>& meanwhile) = 0;

  // What the clipboard holds, as another program reads it.
  [[nodiscard]] virtual std::string ClipboardText() = 0;
  // Another program keeps the clipboard open as long as `meanwhile` runs.
  virtual void HoldClipboard(const std::function<void()>& meanwhile) = 0;
};

[[nodiscard]] std::unique_ptr<World> MakeWorld();

}  // namespace contract
