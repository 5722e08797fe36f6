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

// An open key, which is closed when it is destroyed. A typed read returns nullopt when the value is
// missing or has another registry type. A write that the system refuses throws std::runtime_error
// and leaves the value as it was.
class RegistryKey {
 public:
  virtual ~RegistryKey() = default;

  [[nodiscard]] virtual std::optional<std::uint32_t> ReadDword(std::string_view name) = 0;
  // Reads a REG_SZ value: its text up to the first NUL.
  [[nodiscard]] virtual std::optional<std::string> ReadText(std::string_view name) = 0;
  [[nodiscard]] virtual std::optional<std::vector<std::byte>> ReadBinary(std::string_view name) = 0;

  virtual void WriteDword(std::string_view name, std::uint32_t value) = 0;
  virtual void WriteText(std::string_view name, std::string_view value) = 0;
  virtual void WriteBinary(std::string_view name, std::span<const std::byte> value) = 0;

  // Returns true when the value existed and is deleted.
  virtual bool Delete(std::string_view name) = 0;
};

enum class KeyAccess {
  kExisting,  // only a key that exists already
  kCreate,    // makes a missing key, with all keys above it
  kReadOnly,  // only a key that exists already, and only for reading: a write is refused
};

class Registry {
 public:
  virtual ~Registry() = default;

  // Opens a key under HKEY_CURRENT_USER, for reading and writing unless `access` is kReadOnly
  // (RegCreateKeyEx, RegOpenKeyEx).
  //   path  keys separated by "\"; a leading "\" is allowed.
  // Returns null when the key is missing (and not to be made) or the system refuses.
  [[nodiscard]] virtual std::unique_ptr<RegistryKey> Open(std::string_view path,
                                                          KeyAccess access) = 0;
};

}  // namespace platform
