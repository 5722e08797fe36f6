// A registry tree in memory.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/memory/case_fold.h"
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

  static RegistryValue Dword(std::uint32_t value) { return {ValueType::kDword, Bytes(value, 4)}; }
  static RegistryValue Text(std::string_view value) {
    RegistryValue made{ValueType::kText, {}};
    for (const char16_t unit : ToUtf16(value) + u'\0') {
      const std::vector<std::byte> bytes = Bytes(unit, 2);
      made.data.insert(made.data.end(), bytes.begin(), bytes.end());
    }
    return made;
  }
  static RegistryValue Binary(std::span<const std::byte> value) {
    return {ValueType::kBinary, {value.begin(), value.end()}};
  }

  // Return what a typed read of the value gives.
  [[nodiscard]] std::optional<std::uint32_t> AsDword() const {
    if (type != ValueType::kDword || data.size() != 4) return std::nullopt;
    return Number(0, 4);
  }
  [[nodiscard]] std::optional<std::string> AsText() const {
    if (type != ValueType::kText) return std::nullopt;
    std::u16string wide;
    for (std::size_t at = 0; at + 1 < data.size() && Number(at, 2) != 0; at += 2) {
      wide += static_cast<char16_t>(Number(at, 2));
    }
    return ToUtf8(wide);
  }
  [[nodiscard]] std::optional<std::vector<std::byte>> AsBinary() const {
    return type == ValueType::kBinary ? std::optional(data) : std::nullopt;
  }

 private:
  static std::vector<std::byte> Bytes(std::uint32_t number, int size) {
    std::vector<std::byte> bytes;
    for (; size > 0; --size, number >>= 8U) bytes.push_back(static_cast<std::byte>(number));
    return bytes;
  }
  [[nodiscard]] std::uint32_t Number(std::size_t at, std::size_t size) const {
    std::uint32_t number = 0;
    while (size-- > 0) number = number << 8U | std::to_integer<std::uint32_t>(data[at + size]);
    return number;
  }
};

// Names keep the spelling in which they were first written; their case is not told apart.
class Registry : public platform::Registry {
 public:
  explicit Registry(Notebook& notebook) : notebook_(notebook) {}

  std::unique_ptr<RegistryKey> Open(std::string_view path, KeyAccess access) override {
    constexpr std::size_t kLongestName = 255;  // UTF-16 units
    ++notebook_.registry.round_trips;
    const std::string normal = Normal(path);
    if (notebook_.Fails() || denied_.contains(normal)) return nullptr;
    if (access != KeyAccess::kReadOnly && unwritable_.contains(normal)) return nullptr;
    if (ToUtf16(normal.substr(normal.rfind('\\') + 1)).size() > kLongestName) return nullptr;
    std::shared_ptr<Key> key = access == KeyAccess::kCreate ? Make(path) : Find(path);
    return key == nullptr ? nullptr : std::make_unique<OpenKey>(notebook_, std::move(key), access);
  }

  // The functions that follow are for tests: they are not counted and never fail.

  [[nodiscard]] bool Exists(std::string_view path) const { return Find(path) != nullptr; }
  // Return the names of the keys directly under a key, and of the values in it, sorted.
  [[nodiscard]] std::vector<std::string> Keys(std::string_view path) const {
    const std::string inside = Normal(path) + '\\';
    std::vector<std::string> names;
    for (const auto& [normal, key] : keys_) {
      if (!normal.starts_with(inside) || normal.find('\\', inside.size()) != std::string::npos) {
        continue;
      }
      names.push_back(key->path.substr(inside.size()));
    }
    return names;
  }
  [[nodiscard]] std::vector<std::string> Values(std::string_view path) const {
    std::vector<std::string> names;
    if (const std::shared_ptr<Key> key = Find(path)) {
      for (const auto& [folded, named] : key->values) names.push_back(named.name);
    }
    return names;
  }

  [[nodiscard]] std::optional<RegistryValue> Raw(std::string_view path,
                                                 std::string_view name) const {
    const std::shared_ptr<Key> key = Find(path);
    const RegistryValue* value = key == nullptr ? nullptr : key->Value(name);
    return value == nullptr ? std::nullopt : std::optional(*value);
  }
  [[nodiscard]] bool Exists(std::string_view path, std::string_view name) const {
    return Raw(path, name).has_value();
  }
  [[nodiscard]] auto Dword(std::string_view path, std::string_view name) const {
    return Raw(path, name).value_or(RegistryValue()).AsDword();
  }
  [[nodiscard]] auto Text(std::string_view path, std::string_view name) const {
    return Raw(path, name).value_or(RegistryValue()).AsText();
  }
  [[nodiscard]] auto Binary(std::string_view path, std::string_view name) const {
    return Raw(path, name).value_or(RegistryValue()).AsBinary();
  }

  // Writes a value of any type, with the keys above it, as another program might.
  void Set(std::string_view path, std::string_view name, RegistryValue value) {
    Make(path)->Set(name, std::move(value));
  }
  void Remove(std::string_view path, std::string_view name) {
    if (const std::shared_ptr<Key> key = Find(path)) key->values.erase(FoldCase(name));
  }
  // Removes a key with everything in it. Calls on keys that are open there fail from then on.
  void RemoveKey(std::string_view path) {
    std::erase_if(keys_, [inside = Normal(path) + '\\'](const auto& entry) {
      const bool removed = (entry.first + '\\').starts_with(inside);
      if (removed) entry.second->removed = true;
      return removed;
    });
  }
  // Makes the system refuse, from now on, to open or make this key itself.
  void Deny(std::string_view path) { denied_.insert(Normal(path)); }
  // Makes this key itself read-only from now on.
  void DenyWriting(std::string_view path) { unwritable_.insert(Normal(path)); }

 private:
  struct Key {
    struct Named {
      std::string name;  // as it was first written
      RegistryValue value;
    };

    std::string path;                                       // as it was first written
    std::map<std::string, Named, std::less<>> values = {};  // by the folded name
    bool removed = false;

    [[nodiscard]] const RegistryValue* Value(std::string_view name) const {
      const auto found = values.find(FoldCase(name));
      return found == values.end() ? nullptr : &found->second.value;
    }
    void Set(std::string_view name, RegistryValue value) {
      const auto [place, is_new] = values.try_emplace(FoldCase(name));
      if (is_new) place->second.name = name;
      place->second.value = std::move(value);
    }
  };

  class OpenKey final : public RegistryKey {
   public:
    OpenKey(Notebook& notebook, std::shared_ptr<Key> key, KeyAccess access)
        : notebook_(notebook), key_(std::move(key)), writable_(access != KeyAccess::kReadOnly) {}

    std::optional<std::uint32_t> ReadDword(std::string_view name) override {
      return Read(name).AsDword();
    }
    std::optional<std::string> ReadText(std::string_view name) override {
      return Read(name).AsText();
    }
    std::optional<std::vector<std::byte>> ReadBinary(std::string_view name) override {
      return Read(name).AsBinary();
    }
    void WriteDword(std::string_view name, std::uint32_t value) override {
      Write(name, RegistryValue::Dword(value));
    }
    void WriteText(std::string_view name, std::string_view value) override {
      Write(name, RegistryValue::Text(value));
    }
    void WriteBinary(std::string_view name, std::span<const std::byte> value) override {
      Write(name, RegistryValue::Binary(value));
    }
    bool Delete(std::string_view name) override {
      if (notebook_.Fails() || key_->removed || !writable_) return false;
      return key_->values.erase(FoldCase(name)) > 0;
    }

   private:
    // Of no type where nothing is read.
    RegistryValue Read(std::string_view name) {
      ++notebook_.registry.reads;
      if (notebook_.on_registry_read) notebook_.on_registry_read(name);
      const RegistryValue* value = notebook_.Fails() || key_->removed ? nullptr : key_->Value(name);
      return value == nullptr ? RegistryValue() : *value;
    }
    void Write(std::string_view name, RegistryValue value) {
      ++notebook_.registry.writes;
      if (notebook_.on_registry_write) notebook_.on_registry_write(name);
      if (notebook_.Fails() || !writable_) throw std::runtime_error("RegSetValueEx: error 5");
      if (key_->removed) throw std::runtime_error("RegSetValueEx: error 1018");
      key_->Set(name, std::move(value));
    }

    Notebook& notebook_;
    std::shared_ptr<Key> key_;
    const bool writable_;
  };

  static std::string_view Stripped(std::string_view path) {
    while (path.starts_with('\\')) path.remove_prefix(1);
    while (path.ends_with('\\')) path.remove_suffix(1);
    return path;
  }
  // Returns one form for all spellings of a path.
  static std::string Normal(std::string_view path) { return FoldCase(Stripped(path)); }

  [[nodiscard]] std::shared_ptr<Key> Find(std::string_view path) const {
    const auto found = keys_.find(Normal(path));
    return found == keys_.end() ? nullptr : found->second;
  }
  std::shared_ptr<Key> Make(std::string_view path) {
    path = Stripped(path);
    for (std::size_t end = path.find('\\');; end = path.find('\\', end + 1)) {
      const std::string above(path.substr(0, end));
      std::shared_ptr<Key>& key = keys_[FoldCase(above)];
      if (key == nullptr) key = std::make_shared<Key>(Key{.path = above});
      if (end == std::string_view::npos) return key;
    }
  }

  Notebook& notebook_;
  std::map<std::string, std::shared_ptr<Key>> keys_;  // by the folded path
  std::set<std::string> denied_;
  std::set<std::string> unwritable_;
};

}  // namespace platform::memory
