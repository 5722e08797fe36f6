// The current user's registry.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// An open key; closed when it is destroyed. A typed read of a value that is missing or has another
// registry type gives nothing. A write that the system refuses throws std::runtime_error and leaves
// the value as it was.
class RegistryKey {
 public:
  virtual ~RegistryKey() = default;

  [[nodiscard]] virtual std::optional<std::uint32_t> ReadDword(std::string_view name) = 0;
  // REG_SZ; text up to the first NUL.
  [[nodiscard]] virtual std::optional<std::string> ReadText(std::string_view name) = 0;
  [[nodiscard]] virtual std::optional<std::vector<std::byte>> ReadBinary(std::string_view name) = 0;

  virtual void WriteDword(std::string_view name, std::uint32_t value) = 0;
  virtual void WriteText(std::string_view name, std::string_view value) = 0;
  virtual void WriteBinary(std::string_view name, std::span<const std::byte> value) = 0;

  // True when the value was there and is gone.
  virtual bool Delete(std::string_view name) = 0;
};

enum class KeyAccess {
  kExisting,  // only a key that is there already
  kCreate,    // made, with all keys above it, when missing
  kReadOnly,  // only a key that is there already, and only to be read: a write is refused
};

class Registry {
 public:
  virtual ~Registry() = default;

  // Opens a key under HKEY_CURRENT_USER, for reading and writing where `access` says nothing else
  // (RegCreateKeyEx, RegOpenKeyEx).
  //   path  keys separated by "\"; a leading "\" is allowed.
  // Null when the key is missing (and not to be made) or the system refuses.
  [[nodiscard]] virtual std::unique_ptr<RegistryKey> Open(std::string_view path,
                                                          KeyAccess access) = 0;
};

}  // namespace platform
