#include "settings/first_start.h"

#include "settings/schema.h"

namespace settings {
namespace {

void Touch(Store& store, const SchemaRow& row, platform::DateTime today) {
  switch (row.type) {
    case ValueType::kInteger:
      store.ReadInteger(row.name, row.read.number);
      break;
    case ValueType::kBoolean:
      store.ReadBool(row.name, row.read.number != 0);
      break;
    case ValueType::kColour:
      store.ReadColor(row.name, static_cast<platform::Colour>(row.read.number));
      break;
    case ValueType::kDate:
      store.ReadDate(row.name, today + static_cast<double>(row.read.number));
      break;
    case ValueType::kText:
    case ValueType::kCounter:
      break;  // reading a text stores nothing
  }
}

}  // namespace

void CreateMissingValues(Store& store, platform::DateTime today) {
  for (const SchemaRow& row : Schema()) {
    if (row.read.kind != Default::Kind::kNone) Touch(store, row, today);
  }
}

}  // namespace settings
