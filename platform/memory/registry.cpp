#include "platform/memory/registry.h"

#include <stdexcept>
#include <utility>

#include "platform/memory/case_fold.h"
#include "platform/text.h"

namespace platform::memory {
namespace {

constexpr std::size_t kLongestKeyName = 255;  // UTF-16 units

std::string_view Stripped(std::string_view path) {
  while (path.starts_with('\\')) path.remove_prefix(1);
  while (path.ends_with('\\')) path.remove_suffix(1);
  return path;
}

// Returns one form for all spellings of a path.
std::string Normal(std::string_view path) { return FoldCase(Stripped(path)); }

// Returns whether a path is one of the keys on the way to another, or that one.
bool LeadsTo(const std::string& path, const std::string& other) {
  return other.starts_with(path) && (other.size() == path.size() || other[path.size()] == '\\');
}

}  // namespace

RegistryValue RegistryValue::Dword(std::uint32_t value) {
  RegistryValue made{ValueType::kDword, {}};
  for (int shift = 0; shift < 32; shift += 8) {
    made.data.push_back(static_cast<std::byte>(value >> shift));
  }
  return made;
}

RegistryValue RegistryValue::Text(std::string_view value) {
  RegistryValue made{ValueType::kText, {}};
  for (const char16_t unit : ToUtf16(value) + u'\0') {
    made.data.push_back(static_cast<std::byte>(unit));
    made.data.push_back(static_cast<std::byte>(unit >> 8));
  }
  return made;
}

RegistryValue RegistryValue::Binary(std::span<const std::byte> value) {
  return {ValueType::kBinary, {value.begin(), value.end()}};
}

std::optional<std::uint32_t> RegistryValue::AsDword() const {
  if (type != ValueType::kDword || data.size() != 4) return std::nullopt;
  std::uint32_t value = 0;
  for (std::size_t at = 4; at-- > 0;) value = value << 8 | std::to_integer<std::uint32_t>(data[at]);
  return value;
}

std::optional<std::string> RegistryValue::AsText() const {
  if (type != ValueType::kText) return std::nullopt;
  std::u16string wide;
  for (std::size_t at = 0; at + 1 < data.size(); at += 2) {
    const auto unit = static_cast<char16_t>(std::to_integer<unsigned>(data[at]) |
                                            std::to_integer<unsigned>(data[at + 1]) << 8);
    if (unit == 0) break;
    wide += unit;
  }
  return ToUtf8(wide);
}

std::optional<std::vector<std::byte>> RegistryValue::AsBinary() const {
  return type == ValueType::kBinary ? std::optional(data) : std::nullopt;
}

struct Registry::Key {
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

class Registry::OpenKey : public RegistryKey {
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

Registry::Registry(Notebook& notebook) : notebook_(notebook) {}
Registry::~Registry() = default;

std::unique_ptr<RegistryKey> Registry::Open(std::string_view path, KeyAccess access) {
  ++notebook_.registry.round_trips;
  const std::string normal = Normal(path);
  if (notebook_.Fails() || denied_.contains(normal)) return nullptr;
  if (access != KeyAccess::kReadOnly && unwritable_.contains(normal)) return nullptr;
  if (ToUtf16(normal.substr(normal.rfind('\\') + 1)).size() > kLongestKeyName) return nullptr;
  std::shared_ptr<Key> key = access == KeyAccess::kCreate ? Make(path) : Find(path);
  return key == nullptr ? nullptr : std::make_unique<OpenKey>(notebook_, std::move(key), access);
}

std::shared_ptr<Registry::Key> Registry::Find(std::string_view path) const {
  const auto found = keys_.find(Normal(path));
  return found == keys_.end() ? nullptr : found->second;
}

std::shared_ptr<Registry::Key> Registry::Make(std::string_view path) {
  path = Stripped(path);
  for (std::size_t end = path.find('\\');; end = path.find('\\', end + 1)) {
    std::shared_ptr<Key>& key = keys_[FoldCase(path.substr(0, end))];
    if (key == nullptr) key = std::make_shared<Key>(Key{.path = std::string(path.substr(0, end))});
    if (end == std::string_view::npos) return key;
  }
}

bool Registry::Exists(std::string_view path) const { return Find(path) != nullptr; }

std::vector<std::string> Registry::Keys(std::string_view path) const {
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

std::vector<std::string> Registry::Values(std::string_view path) const {
  std::vector<std::string> names;
  if (const std::shared_ptr<Key> key = Find(path)) {
    for (const auto& [folded, named] : key->values) names.push_back(named.name);
  }
  return names;
}

std::optional<RegistryValue> Registry::Raw(std::string_view path, std::string_view name) const {
  const std::shared_ptr<Key> key = Find(path);
  const RegistryValue* value = key == nullptr ? nullptr : key->Value(name);
  return value == nullptr ? std::nullopt : std::optional(*value);
}

void Registry::Set(std::string_view path, std::string_view name, RegistryValue value) {
  Make(path)->Set(name, std::move(value));
}

void Registry::Remove(std::string_view path, std::string_view name) {
  if (const std::shared_ptr<Key> key = Find(path)) key->values.erase(FoldCase(name));
}

void Registry::RemoveKey(std::string_view path) {
  std::erase_if(keys_, [normal = Normal(path)](const auto& entry) {
    const bool removed = LeadsTo(normal, entry.first);
    if (removed) entry.second->removed = true;
    return removed;
  });
}

void Registry::Deny(std::string_view path) { denied_.insert(Normal(path)); }

void Registry::DenyWriting(std::string_view path) { unwritable_.insert(Normal(path)); }

}  // namespace platform::memory
