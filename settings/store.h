// The small layer of typed accessors through which everything that outlives a run is read and
// written, in the registry of the current user. Each call opens the key, does one thing and closes
// it again; nothing is cached, so what one part writes the next read sees.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/colour.h"
#include "platform/date_time.h"
#include "platform/files.h"
#include "platform/registry.h"
#include "settings/schema.h"

namespace settings {

// The keys by the index that the text accessors take. An index above 3 reads from AdapterDatas and
// writes nothing.
enum class KeyIndex : int {
  kSettings = 0,
  kPaths = 1,  // accepted, but nothing is stored there
  kRun = 2,    // what starts with Windows; belongs to the system, so it is never created
  kAdapterDatas = 3,
};

class Store {
 public:
  // Both outlive the store.
  Store(platform::Registry& registry, platform::Files& files)
      : registry_(registry), files_(files) {}

  // Reads of a value under Settings. One that is missing, has another registry type or, for a
  // colour, is no colour's text gives the default, which is stored in its place (an integer's low
  // 32 bits). They never fail: where the default cannot be stored either, it is only returned, and
  // a key that can only be read is read.
  std::int64_t ReadInteger(std::string_view name, std::int64_t default_value);
  bool ReadBool(std::string_view name, bool default_value);
  platform::DateTime ReadDate(std::string_view name, platform::DateTime default_value);
  platform::Colour ReadColor(std::string_view name, platform::Colour default_value);

  // Writes under Settings. True when the key could be opened and the value was written; a write
  // that the system refuses throws std::runtime_error and leaves the old value.
  bool WriteInteger(std::string_view name, std::int64_t value);  // stores the low 32 bits
  bool WriteBool(std::string_view name, bool value);
  bool WriteDate(std::string_view name, platform::DateTime value);
  bool WriteColor(std::string_view name, platform::Colour value);

  // A text; the default, which is not stored, when it is missing or no text.
  [[nodiscard]] std::string ReadString(KeyIndex key, std::string_view name,
                                       std::string_view default_value);
  // As the other writes; also false for an index above 3.
  bool WriteString(KeyIndex key, std::string_view name, std::string_view value);

  // A 64-bit number kept as text, 0 when missing; throws ConversionError when the text is no
  // number. Written is the decimal of the absolute value.
  [[nodiscard]] std::int64_t ReadCounter(KeyIndex key, std::string_view name);
  bool WriteCounter(KeyIndex key, std::string_view name, std::int64_t value);

  // Deletes a value of the Run key. True when the key is there and the deletion was asked for.
  bool DeleteRunValue(std::string_view name);

  // The same by the schema's constants, with the schema's default.
  std::int64_t Read(const IntegerSetting& s) { return ReadInteger(s.name, s.read); }
  bool Read(const BooleanSetting& s) { return ReadBool(s.name, s.read); }
  platform::Colour Read(const ColourSetting& s) { return ReadColor(s.name, s.read); }
  platform::DateTime Read(const DateSetting& s, platform::DateTime today) {
    return ReadDate(s.name, today + s.days_from_today);
  }
  [[nodiscard]] std::string Read(const TextSetting& s) { return ReadWith(s, Resolve(s.read)); }
  [[nodiscard]] std::int64_t Read(const CounterSetting& s) {
    return ReadCounter(KeyIndex::kSettings, s.name);
  }

  // For the few readers whose default differs from the schema's.
  std::int64_t ReadWith(const IntegerSetting& s, std::int64_t own_default) {
    return ReadInteger(s.name, own_default);
  }
  bool ReadWith(const BooleanSetting& s, bool own_default) { return ReadBool(s.name, own_default); }
  [[nodiscard]] std::string ReadWith(const TextSetting& s, std::string_view own_default) {
    return ReadString(KeyIndex::kSettings, s.name, own_default);
  }

  bool Write(const IntegerSetting& s, std::int64_t value) { return WriteInteger(s.name, value); }
  bool Write(const BooleanSetting& s, bool value) { return WriteBool(s.name, value); }
  bool Write(const ColourSetting& s, platform::Colour value) { return WriteColor(s.name, value); }
  bool Write(const DateSetting& s, platform::DateTime value) { return WriteDate(s.name, value); }
  bool Write(const TextSetting& s, std::string_view value) {
    return WriteString(KeyIndex::kSettings, s.name, value);
  }
  bool Write(const CounterSetting& s, std::int64_t value) {
    return WriteCounter(KeyIndex::kSettings, s.name, value);
  }

  // Full path of a file beside the program.
  [[nodiscard]] std::string ProgramFile(std::string_view name) const;
  // The text of a text's default; empty when there is none.
  [[nodiscard]] std::string Resolve(const Default& value) const;

 private:
  [[nodiscard]] std::unique_ptr<platform::RegistryKey> Open(KeyIndex key);
  [[nodiscard]] std::unique_ptr<platform::RegistryKey> OpenToRead(KeyIndex key);

  platform::Registry& registry_;
  platform::Files& files_;
};

}  // namespace settings
