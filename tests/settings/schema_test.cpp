// What each row of the schema says stands once more in docs/settings.md, and is compared with it.
#include "settings/schema.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "platform/memory/machine.h"
#include "platform/text.h"
#include "settings/first_start.h"
#include "settings/store.h"
#include "settings/value_texts.h"

namespace {

using platform::memory::RegistryValue;
using settings::Default;
using settings::SchemaRow;
using settings::ValueType;

constexpr const char* kSettings = "\\SOFTWARE\\Korvane\\Dravenlow\\Settings";
constexpr platform::DateTime kToday = 45427;  // 2024-05-15

// What a first start stores for a row.
RegistryValue FirstValue(const SchemaRow& row) {
  const double yesterday = kToday - 1;
  if (row.type == ValueType::kDate) {
    return RegistryValue::Binary(std::as_bytes(std::span(&yesterday, 1)));
  }
  if (row.type == ValueType::kColour) {
    return RegistryValue::Text(
        settings::ColourText(static_cast<platform::Colour>(row.read.number)));
  }
  return RegistryValue::Dword(static_cast<std::uint32_t>(row.read.number));
}

TEST(Schema, AFirstStartStoresWhatIsMissingAndIsNoText) {
  platform::memory::Machine machine;
  settings::Store store(machine.registry, machine.files);
  store.Write(settings::setting::MoreThan, 77);
  machine.registry.Set(kSettings, "ScaleUnit", RegistryValue::Text("of a wrong type"));
  settings::CreateMissingValues(store, kToday);
  for (const SchemaRow& row : settings::Schema()) {
    const bool stored = row.type != ValueType::kText && row.type != ValueType::kCounter &&
                        row.read.kind != Default::Kind::kNone;
    const auto value = machine.registry.Raw(kSettings, row.name);
    ASSERT_EQ(value.has_value(), stored) << row.name;
    if (!stored) continue;
    const RegistryValue expected =
        row.name == "MoreThan" ? RegistryValue::Dword(77) : FirstValue(row);
    EXPECT_EQ(value->type, expected.type) << row.name;
    EXPECT_EQ(value->data, expected.data) << row.name;
  }
}

// The registry does not tell case apart, so such a pair would be one value.
TEST(Schema, NoTwoNamesDifferOnlyInCase) {
  std::set<std::string> seen;
  for (const SchemaRow& row : settings::Schema()) {
    EXPECT_TRUE(seen.insert(platform::AsciiLower(row.name)).second) << row.name;
  }
}

}  // namespace
