#include <cstdio>

#include "settings/schema.h"
#include "tools/made_files/made_files.h"

namespace made_files {
namespace {

using settings::Default;
using settings::ResetGroup;
using settings::SchemaRow;
using settings::ValueType;

std::string TypeText(ValueType type) {
  switch (type) {
    case ValueType::kInteger:
      return "integer";
    case ValueType::kBoolean:
      return "boolean";
    case ValueType::kColour:
      return "colour";
    case ValueType::kDate:
      return "date";
    case ValueType::kText:
      return "text";
    case ValueType::kCounter:
      return "counter";
  }
  return "?";
}

std::string GroupText(ResetGroup group) {
  static constexpr const char* kNames[] = {"-",
                                           "General",
                                           "Graph Colors",
                                           "Graph Grids",
                                           "Graph Other",
                                           "Numeric Colors",
                                           "Numeric Other",
                                           "Bandwidth Alerts",
                                           "Notifications",
                                           "Other",
                                           "Daily Bandwidth",
                                           "Weekly Bandwidth",
                                           "Monthly Bandwidth"};
  return kNames[static_cast<std::size_t>(group)];
}

std::string NumberText(ValueType type, std::int64_t number) {
  if (type == ValueType::kBoolean) return number != 0 ? "true" : "false";
  if (type != ValueType::kColour) return std::to_string(number);
  char text[16];
  std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(number));
  return text;
}

std::string DefaultText(ValueType type, const Default& value) {
  switch (value.kind) {
    case Default::Kind::kNone:
      return "-";
    case Default::Kind::kNumber:
      return NumberText(type, value.number);
    case Default::Kind::kText:
      return value.text.empty() ? "(empty)" : std::string(value.text);
    case Default::Kind::kProgramFile:
      return "program folder + " + std::string(value.text);
    case Default::Kind::kOfToday:
      return value.number == 0 ? "of today" : "yesterday";
  }
  return "?";
}

}  // namespace

std::string SettingsPage() {
  std::string page =
      "# Stored values\n\n"
      "Under `HKEY_CURRENT_USER\\SOFTWARE\\Korvane\\Dravenlow\\Settings`. Made from "
      "`settings/schema_table.inc`; a test compares.\n\n"
      "| value | type | read default | reset default | reset group |\n|---|---|---|---|---|\n";
  for (const SchemaRow& row : settings::Schema()) {
    page += "| `" + std::string(row.name) + "` | " + TypeText(row.type) + " | " +
            DefaultText(row.type, row.read) + " | " + DefaultText(row.type, row.reset) + " | " +
            GroupText(row.group) + " |\n";
  }
  return page;
}

}  // namespace made_files
