// A registry tree in memory.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/memory/notebook.h"
#include "platform/registry.h"

namespace platform::memory {

// The system's numbers of value types.
enum class ValueType : std::uint32_t {
  kNone = 0,
  kText = 1,  // REG_SZ
  kBinary = 3,
  kDword = 4,
  kQword = 11,
};

// A value as the registry keeps it: bytes and the type that the writer gave them. Text is UTF-16,
// low byte first, mostly with a terminating NUL.
struct RegistryValue {
  ValueType type = ValueType::kNone;
  std::vector<std::byte> data;

  static RegistryValue Dword(std::uint32_t value);
  static RegistryValue Text(std::string_view value);
  static RegistryValue Binary(std::span<const std::byte> value);

  // Return what a typed read of the value gives.
  [[nodiscard]] std::optional<std::uint32_t> AsDword() const;
  [[nodiscard]] std::optional<std::string> AsText() const;
  [[nodiscard]] std::optional<std::vector<std::byte>> AsBinary() const;
};

// Names keep the spelling in which they were first written; their case is not told apart.
class Registry : public platform::Registry {
 public:
  explicit Registry(Notebook& notebook);
  ~Registry() override;

  [[nodiscard]] std::unique_ptr<RegistryKey> Open(std::string_view path, KeyAccess access) override;

  // The functions that follow are for tests: they are not counted and never fail.

  [[nodiscard]] bool Exists(std::string_view path) const;
  // Return the names of the keys directly under a key, and of the values in it, sorted.
  [[nodiscard]] std::vector<std::string> Keys(std::string_view path) const;
  [[nodiscard]] std::vector<std::string> Values(std::string_view path) const;

  [[nodiscard]] std::optional<RegistryValue> Raw(std::string_view path,
                                                 std::string_view name) const;
  [[nodiscard]] bool Exists(std::string_view path, std::string_view name) const {
    return Raw(path, name).has_value();
  }
  [[nodiscard]] std::optional<std::uint32_t> Dword(std::string_view path,
                                                   std::string_view name) const {
    return Raw(path, name).value_or(RegistryValue()).AsDword();
  }
  [[nodiscard]] std::optional<std::string> Text(std::string_view path,
                                                std::string_view name) const {
    return Raw(path, name).value_or(RegistryValue()).AsText();
  }
  [[nodiscard]] std::optional<std::vector<std::byte>> Binary(std::string_view path,
                                                             std::string_view name) const {
    return Raw(path, name).value_or(RegistryValue()).AsBinary();
  }

  // Writes a value of any type, with the keys above it, as another program might.
  void Set(std::string_view path, std::string_view name, RegistryValue value);
  void Remove(std::string_view path, std::string_view name);
  // Removes a key with everything in it. Calls on keys that are open there fail from then on.
  void RemoveKey(std::string_view path);
  // Makes the system refuse, from now on, to open or make this key itself.
  void Deny(std::string_view path);
  // Makes this key itself read-only from now on.
  void DenyWriting(std::string_view path);

 private:
  struct Key;
  class OpenKey;

  [[nodiscard]] std::shared_ptr<Key> Find(std::string_view path) const;
  std::shared_ptr<Key> Make(std::string_view path);

  Notebook& notebook_;
  std::map<std::string, std::shared_ptr<Key>> keys_;  // by the folded path
  std::set<std::string> denied_;
  std::set<std::string> unwritable_;
};

}  // namespace platform::memory
