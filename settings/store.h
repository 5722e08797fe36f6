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
  // Both arguments outlive the store.
  Store(platform::Registry& registry, platform::Files& files)
      : registry_(registry), files_(files) {}

  // Returns whether settings can be stored, which an administrator may have forbidden.
  [[nodiscard]] bool Writable() { return Open(KeyIndex::kSettings) != nullptr; }

  // Return a value under Settings. When the value is missing, has another registry type or, for a
  // colour, is not the text of a colour, they return the default and store it in its place (the low
  // 32 bits of an integer). They never fail: a default that cannot be stored is only returned, and
  // a key that does not allow writing is still read.
  std::int64_t ReadInteger(std::string_view name, std::int64_t default_value);
  bool ReadBool(std::string_view name, bool default_value);
  platform::DateTime ReadDate(std::string_view name, platform::DateTime default_value);
  platform::Colour ReadColor(std::string_view name, platform::Colour default_value);

  // Write a value under Settings. They return true when the value was written and false when the
  // key could not be opened. A write that the system refuses throws std::runtime_error and leaves
  // the old value.
  bool WriteInteger(std::string_view name, std::int64_t value);  // stores the low 32 bits
  bool WriteBool(std::string_view name, bool value);
  bool WriteDate(std::string_view name, platform::DateTime value);
  bool WriteColor(std::string_view name, platform::Colour value);

  // Returns a text. When it is missing or has another registry type, returns the default, which is
  // not stored.
  [[nodiscard]] std::string ReadString(KeyIndex key, std::string_view name,
                                       std::string_view default_value);
  // Writes a text and fails as the other writes do; also returns false for an index above 3.
  bool WriteString(KeyIndex key, std::string_view name, std::string_view value);

  // Read and write a 64-bit number that is kept as text. A missing number is 0. A read throws
  // ConversionError when the text is no number. A write stores the decimal digits of the absolute
  // value.
  [[nodiscard]] std::int64_t ReadCounter(KeyIndex key, std::string_view name);
  bool WriteCounter(KeyIndex key, std::string_view name, std::int64_t value);

  // Deletes a value of the Run key. Returns true when the key exists and the system was asked to
  // delete the value.
  bool DeleteRunValue(std::string_view name);

  // The same reads and writes by the schema's constants, with the schema's defaults.
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

  // For the few readers whose default differs from the one in the schema.
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

  // Returns the full path of a file beside the program.
  [[nodiscard]] std::string ProgramFile(std::string_view name) const;
  // Returns the text of a default, or an empty text when there is none.
  [[nodiscard]] std::string Resolve(const Default& value) const;

 private:
  [[nodiscard]] std::unique_ptr<platform::RegistryKey> Open(KeyIndex key);
  [[nodiscard]] std::unique_ptr<platform::RegistryKey> OpenToRead(KeyIndex key);

  platform::Registry& registry_;
  platform::Files& files_;
};

}  // namespace settings
