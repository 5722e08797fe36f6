#include "settings/schema.h"

namespace settings {
namespace {

constexpr SchemaRow kSchema[] = {
// clang-format off
#define SETTING_INTEGER(name, read, reset, group) {#name, ValueType::kInteger, read, reset, ResetGroup::group},
#define SETTING_BOOLEAN(name, read, reset, group) {#name, ValueType::kBoolean, read, reset, ResetGroup::group},
#define SETTING_COLOUR(name, read, reset, group) {#name, ValueType::kColour, read, reset, ResetGroup::group},
#define SETTING_DATE(name, read, reset, group) {#name, ValueType::kDate, read, reset, ResetGroup::group},
#define SETTING_TEXT(name, read, reset, group) {#name, ValueType::kText, read, reset, ResetGroup::group},
#define SETTING_COUNTER(name, group) {#name, ValueType::kCounter, "0", "0", ResetGroup::group},
// clang-format on
#include "settings/schema_table.inc"
};

}  // namespace

std::span<const SchemaRow> Schema() { return kSchema; }

}  // namespace settings
