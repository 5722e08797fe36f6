#include "settings/store.h"

#include <array>
#include <bit>
#include <cstddef>
#include <optional>
#include <span>
#include <stdexcept>
#include <vector>

#include "settings/value_texts.h"

namespace settings {
namespace {

using platform::KeyAccess;
using platform::RegistryKey;

constexpr std::string_view kSettingsPath = "\\SOFTWARE\\Korvane\\Dravenlow\\Settings";
constexpr std::string_view kPathsPath = "\\SOFTWARE\\Korvane\\Dravenlow\\Paths";
constexpr std::string_view kRunPath = "\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr std::string_view kAdapterDatasPath = "\\SOFTWARE\\Korvane\\Dravenlow\\AdapterDatas";

std::string_view PathOf(KeyIndex key) {
  switch (key) {
    case KeyIndex::kSettings:
      return kSettingsPath;
    case KeyIndex::kPaths:
      return kPathsPath;
    case KeyIndex::kRun:
      return kRunPath;
    case KeyIndex::kAdapterDatas:
      break;
  }
  return kAdapterDatasPath;
}

using DateBytes = std::array<std::byte, sizeof(platform::DateTime)>;

std::optional<platform::DateTime> DateFrom(const std::optional<std::vector<std::byte>>& bytes) {
  DateBytes raw{};
  if (!bytes || bytes->size() != raw.size()) return std::nullopt;
  std::copy(bytes->begin(), bytes->end(), raw.begin());
  return std::bit_cast<platform::DateTime>(raw);
}

// Reads with `read`. When that gives nullopt, stores the default through `write` and returns it. A
// default that cannot be stored is returned all the same: the failure is of no use to a reader.
template <class Value, class Reading, class Writing>
Value ReadOrStore(RegistryKey* key, const Value& default_value, const Reading& read,
                  const Writing& write) {
  if (key == nullptr) return default_value;
  try {
    const std::optional<Value> value = read(*key);
    if (value) return *value;
    write(*key);
  } catch (const std::runtime_error&) {
  }
  return default_value;
}

}  // namespace

std::unique_ptr<RegistryKey> Store::Open(KeyIndex key) {
  // The Run key belongs to the system, so the program never creates it.
  return registry_.Open(PathOf(key),
                        key == KeyIndex::kRun ? KeyAccess::kExisting : KeyAccess::kCreate);
}

// When an administrator has taken the right to write away, the settings can still be read.
std::unique_ptr<RegistryKey> Store::OpenToRead(KeyIndex key) {
  auto opened = Open(key);
  return opened ? std::move(opened) : registry_.Open(PathOf(key), KeyAccess::kReadOnly);
}

std::int64_t Store::ReadInteger(std::string_view name, std::int64_t default_value) {
  return ReadOrStore(
      OpenToRead(KeyIndex::kSettings).get(), default_value,
      [&](RegistryKey& key) -> std::optional<std::int64_t> {
        const auto value = key.ReadDword(name);
        if (!value) return std::nullopt;
        return static_cast<std::int32_t>(*value);  // a stored 0xFFFFFFFF is -1
      },
      [&](RegistryKey& key) { key.WriteDword(name, static_cast<std::uint32_t>(default_value)); });
}

bool Store::ReadBool(std::string_view name, bool default_value) {
  return ReadOrStore(
      OpenToRead(KeyIndex::kSettings).get(), default_value,
      [&](RegistryKey& key) -> std::optional<bool> {
        const auto value = key.ReadDword(name);
        if (!value) return std::nullopt;
        return *value != 0;
      },
      [&](RegistryKey& key) { key.WriteDword(name, default_value ? 1 : 0); });
}

platform::DateTime Store::ReadDate(std::string_view name, platform::DateTime default_value) {
  return ReadOrStore(
      OpenToRead(KeyIndex::kSettings).get(), default_value,
      [&](RegistryKey& key) { return DateFrom(key.ReadBinary(name)); },
      [&](RegistryKey& key) {
        key.WriteBinary(name, std::as_bytes(std::span(&default_value, 1)));
      });
}

platform::Colour Store::ReadColor(std::string_view name, platform::Colour default_value) {
  return ReadOrStore(
      OpenToRead(KeyIndex::kSettings).get(), default_value,
      [&](RegistryKey& key) { return ParseColour(key.ReadText(name).value_or("")); },
      [&](RegistryKey& key) { key.WriteText(name, ColourText(default_value)); });
}

bool Store::WriteInteger(std::string_view name, std::int64_t value) {
  const auto key = Open(KeyIndex::kSettings);
  if (!key) return false;
  key->WriteDword(name, static_cast<std::uint32_t>(value));
  return true;
}

bool Store::WriteBool(std::string_view name, bool value) {
  return WriteInteger(name, value ? 1 : 0);
}

bool Store::WriteDate(std::string_view name, platform::DateTime value) {
  const auto key = Open(KeyIndex::kSettings);
  if (!key) return false;
  key->WriteBinary(name, std::as_bytes(std::span(&value, 1)));
  return true;
}

bool Store::WriteColor(std::string_view name, platform::Colour value) {
  return WriteString(KeyIndex::kSettings, name, ColourText(value));
}

std::string Store::ReadString(KeyIndex key, std::string_view name, std::string_view default_value) {
  const auto opened = OpenToRead(key);
  if (!opened) return std::string(default_value);
  return opened->ReadText(name).value_or(std::string(default_value));
}

bool Store::WriteString(KeyIndex key, std::string_view name, std::string_view value) {
  if (key > KeyIndex::kAdapterDatas) return false;
  const auto opened = Open(key);
  if (!opened) return false;
  opened->WriteText(name, value);
  return true;
}

std::int64_t Store::ReadCounter(KeyIndex key, std::string_view name) {
  return ParseCounter(ReadString(key, name, "0"));
}

bool Store::WriteCounter(KeyIndex key, std::string_view name, std::int64_t value) {
  return WriteString(key, name, CounterText(value));
}

bool Store::DeleteRunValue(std::string_view name) {
  const auto key = Open(KeyIndex::kRun);
  if (!key) return false;
  key->Delete(name);
  return true;
}

std::string Store::ProgramFile(std::string_view name) const {
  return files_.ProgramFolder() + std::string(name);
}

std::string Store::Resolve(const Default& value) const {
  return value.kind == Default::Kind::kProgramFile ? ProgramFile(value.text)
                                                   : std::string(value.text);
}

}  // namespace settings
