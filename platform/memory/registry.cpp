#include "platform/memory/registry.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/memory/case_fold.h"
#include "platform/text.h"

namespace platform::memory {
namespace {

// The system's limits, in UTF-16 units.
constexpr std::size_t kLongestKeyName = 255;
constexpr std::size_t kLongestValueName = 16383;

std::vector<std::string> Split(std::string_view path) {
  std::vector<std::string> names;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find('\\'), path.size());
    if (end > 0) names.emplace_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return names;
}

// Returns one form for all spellings of a path.
std::string Normal(std::string_view path) {
  std::string normal;
  for (const std::string& name : Split(path)) normal += '\\' + FoldCase(name);
  return normal;
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
  if (type != ValueType::kBinary) return std::nullopt;
  return data;
}

// Maps are keyed by the folded name; the name as it was first written stands inside.
struct Registry::Key {
  struct Named {
    std::string name;
    RegistryValue value;
  };

  std::string name;
  std::map<std::string, std::shared_ptr<Key>, std::less<>> keys;
  std::map<std::string, Named, std::less<>> values;
  bool removed = false;

  [[nodiscard]] const RegistryValue* Value(std::string_view value_name) const {
    const auto found = values.find(FoldCase(value_name));
    return found == values.end() ? nullptr : &found->second.value;
  }
  void Set(std::string_view value_name, RegistryValue value) {
    const auto [place, is_new] = values.try_emplace(FoldCase(value_name));
    if (is_new) place->second.name = value_name;
    place->second.value = std::move(value);
  }
  void MarkRemoved() {
    removed = true;
    for (const auto& [folded, key] : keys) key->MarkRemoved();
  }
};

class Registry::OpenKey : public RegistryKey {
 public:
  OpenKey(Notebook& notebook, std::shared_ptr<Key> key, KeyAccess access)
      : notebook_(notebook), key_(std::move(key)), writable_(access != KeyAccess::kReadOnly) {}

  std::optional<std::uint32_t> ReadDword(std::string_view name) override {
    ++notebook_.registry.dword_reads;
    const RegistryValue* value = Read(name);
    return value == nullptr ? std::nullopt : value->AsDword();
  }
  std::optional<std::string> ReadText(std::string_view name) override {
    ++notebook_.registry.text_reads;
    const RegistryValue* value = Read(name);
    return value == nullptr ? std::nullopt : value->AsText();
  }
  std::optional<std::vector<std::byte>> ReadBinary(std::string_view name) override {
    ++notebook_.registry.binary_reads;
    const RegistryValue* value = Read(name);
    return value == nullptr ? std::nullopt : value->AsBinary();
  }

  void WriteDword(std::string_view name, std::uint32_t value) override {
    ++notebook_.registry.dword_writes;
    Write(name, RegistryValue::Dword(value));
  }
  void WriteText(std::string_view name, std::string_view value) override {
    ++notebook_.registry.text_writes;
    Write(name, RegistryValue::Text(value));
  }
  void WriteBinary(std::string_view name, std::span<const std::byte> value) override {
    ++notebook_.registry.binary_writes;
    Write(name, RegistryValue::Binary(value));
  }

  bool Delete(std::string_view name) override {
    ++notebook_.registry.deletes;
    if (notebook_.Fails() || key_->removed || !writable_) return false;
    return key_->values.erase(FoldCase(name)) > 0;
  }

 private:
  const RegistryValue* Read(std::string_view name) {
    if (notebook_.on_registry_read) notebook_.on_registry_read(name);
    if (notebook_.Fails() || key_->removed) return nullptr;
    return key_->Value(name);
  }
  void Write(std::string_view name, RegistryValue value) {
    if (notebook_.on_registry_write) notebook_.on_registry_write(name);
    if (notebook_.Fails() || !writable_) throw std::runtime_error("RegSetValueEx: error 5");
    if (key_->removed) throw std::runtime_error("RegSetValueEx: error 1018");
    if (ToUtf16(name).size() > kLongestValueName) {
      throw std::runtime_error("RegSetValueEx: error 87");
    }
    key_->Set(name, std::move(value));
  }

  Notebook& notebook_;
  std::shared_ptr<Key> key_;
  const bool writable_;
};

Registry::Registry(Notebook& notebook) : notebook_(notebook), root_(std::make_shared<Key>()) {}
Registry::~Registry() = default;

std::unique_ptr<RegistryKey> Registry::Open(std::string_view path, KeyAccess access) {
  ++notebook_.registry.round_trips;
  if (notebook_.Fails() || denied_.contains(Normal(path))) return nullptr;
  if (access != KeyAccess::kReadOnly && unwritable_.contains(Normal(path))) return nullptr;
  for (const std::string& name : Split(path)) {
    if (ToUtf16(name).size() > kLongestKeyName) return nullptr;
  }
  std::shared_ptr<Key> key = access == KeyAccess::kCreate ? Make(path) : Find(path);
  return key == nullptr ? nullptr : std::make_unique<OpenKey>(notebook_, std::move(key), access);
}

std::shared_ptr<Registry::Key> Registry::Find(std::string_view path) const {
  std::shared_ptr<Key> key = root_;
  for (const std::string& name : Split(path)) {
    const auto found = key->keys.find(FoldCase(name));
    if (found == key->keys.end()) return nullptr;
    key = found->second;
  }
  return key;
}

std::shared_ptr<Registry::Key> Registry::Make(std::string_view path) {
  std::shared_ptr<Key> key = root_;
  for (const std::string& name : Split(path)) {
    std::shared_ptr<Key>& next = key->keys[FoldCase(name)];
    if (next == nullptr) {
      next = std::make_shared<Key>();
      next->name = name;
    }
    key = next;
  }
  return key;
}

bool Registry::Exists(std::string_view path) const { return Find(path) != nullptr; }

std::vector<std::string> Registry::Keys(std::string_view path) const {
  std::vector<std::string> names;
  if (const std::shared_ptr<Key> key = Find(path)) {
    for (const auto& [folded, child] : key->keys) names.push_back(child->name);
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

bool Registry::Exists(std::string_view path, std::string_view name) const {
  return Raw(path, name).has_value();
}

std::optional<ValueType> Registry::TypeOf(std::string_view path, std::string_view name) const {
  const std::optional<RegistryValue> value = Raw(path, name);
  return value ? std::optional(value->type) : std::nullopt;
}

std::optional<std::uint32_t> Registry::Dword(std::string_view path, std::string_view name) const {
  const std::optional<RegistryValue> value = Raw(path, name);
  return value ? value->AsDword() : std::nullopt;
}

std::optional<std::string> Registry::Text(std::string_view path, std::string_view name) const {
  const std::optional<RegistryValue> value = Raw(path, name);
  return value ? value->AsText() : std::nullopt;
}

std::optional<std::vector<std::byte>> Registry::Binary(std::string_view path,
                                                       std::string_view name) const {
  const std::optional<RegistryValue> value = Raw(path, name);
  return value ? value->AsBinary() : std::nullopt;
}

void Registry::Set(std::string_view path, std::string_view name, RegistryValue value) {
  Make(path)->Set(name, std::move(value));
}

void Registry::Remove(std::string_view path, std::string_view name) {
  if (const std::shared_ptr<Key> key = Find(path)) key->values.erase(FoldCase(name));
}

void Registry::RemoveKey(std::string_view path) {
  const std::shared_ptr<Key> key = Find(path);
  if (key == nullptr || key == root_) return;
  key->MarkRemoved();
  while (!path.empty() && path.back() == '\\') path.remove_suffix(1);
  const std::size_t cut = path.rfind('\\');
  const std::string_view above = cut == std::string_view::npos ? "" : path.substr(0, cut);
  Find(above)->keys.erase(FoldCase(key->name));
}

void Registry::Deny(std::string_view path) { denied_.insert(Normal(path)); }

void Registry::DenyWriting(std::string_view path) { unwritable_.insert(Normal(path)); }

}  // namespace platform::memory
