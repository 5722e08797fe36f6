// The catalogue of stored values. settings/schema_table.inc holds the table itself; code names a
// value by its typed constant, as in `store.Read(setting::FormMagnet)`.
#pragma once

#include <concepts>
#include <cstdint>
#include <span>
#include <string_view>

#include "platform/colour.h"

namespace settings {

enum class ValueType {
  kInteger,
  kBoolean,
  kColour,
  kDate,
  kText,
  kCounter,  // a text that holds a 64-bit number, "0" when missing
};

// The groups that the user can put back to their defaults one by one, in the order of the reset.
enum class ResetGroup {
  kNoGroup,
  kGeneral,
  kGraphColors,
  kGraphGrids,
  kGraphOther,
  kNumericColors,
  kNumericOther,
  kBandwidthAlerts,
  kNotifications,
  kOther,
  kDaily,
  kWeekly,
  kMonthly,
};

// A default of the table.
struct Default {
  enum class Kind {
    kNone,         // no default: the value is not read, or not reset
    kNumber,       // `number`: an integer, 0 or 1 of a boolean, a colour
    kText,         // `text`
    kProgramFile,  // the folder of the program and `text`
    kOfToday,  // the date of today plus `number` days; for a week or month marker the one of today
  };

  constexpr Default() = default;
  template <std::integral Number>
  constexpr Default(Number value)  // NOLINT(google-explicit-constructor): reads as a table
      : kind(Kind::kNumber), number(static_cast<std::int64_t>(value)) {}
  constexpr Default(const char* value)  // NOLINT(google-explicit-constructor)
      : kind(Kind::kText), text(value) {}

  Kind kind = Kind::kNone;
  std::int64_t number = 0;
  std::string_view text;
};

inline constexpr Default kNone{};

constexpr Default ProgramFile(std::string_view name) {
  Default file;
  file.kind = Default::Kind::kProgramFile;
  file.text = name;
  return file;
}

constexpr Default OfToday(int days) {
  Default date;
  date.kind = Default::Kind::kOfToday;
  date.number = days;
  return date;
}

// The types of the typed constants. Each holds the value's name and the default that a reader
// passes.
struct IntegerSetting {
  std::string_view name;
  std::int64_t read;
};
struct BooleanSetting {
  std::string_view name;
  bool read;
};
struct ColourSetting {
  std::string_view name;
  platform::Colour read;
};
struct DateSetting {
  std::string_view name;
  int days_from_today;
};
struct TextSetting {
  std::string_view name;
  Default read;
};
struct CounterSetting {
  std::string_view name;
};

namespace setting {
// clang-format off
#define SETTING_INTEGER(name, read, reset, group) inline constexpr IntegerSetting name{#name, Default(read).number};
#define SETTING_BOOLEAN(name, read, reset, group) inline constexpr BooleanSetting name{#name, Default(read).number != 0};
#define SETTING_COLOUR(name, read, reset, group) inline constexpr ColourSetting name{#name, static_cast<platform::Colour>(Default(read).number)};
#define SETTING_DATE(name, read, reset, group) inline constexpr DateSetting name{#name, static_cast<int>(Default(read).number)};
#define SETTING_TEXT(name, read, reset, group) inline constexpr TextSetting name{#name, Default(read)};
#define SETTING_COUNTER(name, group) inline constexpr CounterSetting name{#name};
// clang-format on
#include "settings/schema_table.inc"
}  // namespace setting

// One line of the table, for code that goes through all of it.
struct SchemaRow {
  std::string_view name;
  ValueType type;
  Default read;
  Default reset;
  ResetGroup group;
};

// Returns every stored value with a fixed name, in the order of the reset.
[[nodiscard]] std::span<const SchemaRow> Schema();

}  // namespace settings
